#include "planner/AppointmentConversion.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;

constexpr auto kDay = std::chrono::year(2026) / 3 / 12;

TEST(AppointmentConversion, ARowHoldsDayAndTagAsTheyAreStored) {
    const Appointment lunch{.tag = Moment{local_days(kDay)} + 10h + 42min,
                            .day = kDay,
                            .begin = "12:00 PM",
                            .end = "about one",
                            .text = "Lunch",
                            .style = "Meeting"};
    const AppointmentRow row = rowOf(lunch);
    EXPECT_EQ(row.number, 0);
    EXPECT_EQ(row.text(Column::TagVariant), "2026-03-12 10:42:00");
    EXPECT_EQ(row.text(Column::Date), "2026-03-12");
    EXPECT_EQ(row.text(Column::BeginTime), "12:00 PM");
    EXPECT_EQ(row.text(Column::EndTime), "about one");
    EXPECT_EQ(row.text(Column::Desc), "Lunch");
    EXPECT_EQ(row.text(Column::StyleSet), "Meeting");
    EXPECT_EQ(appointmentOf(row), lunch);
}

TEST(AppointmentConversion, AnAppointmentWithoutADayHasNullThere) {
    const Appointment loose{.tag = Moment{local_days(kDay)}, .text = "some day"};
    const AppointmentRow row = rowOf(loose);
    EXPECT_EQ(row[Column::Date], std::nullopt);
    EXPECT_EQ(row[Column::BeginTime], "");
    EXPECT_EQ(appointmentOf(row), loose);
}

TEST(AppointmentConversion, ARowOfNullsIsAnAppointmentOfNothing) {
    const Appointment nothing = appointmentOf({});
    EXPECT_EQ(nothing.tag, Moment{});
    EXPECT_EQ(nothing.day, std::nullopt);
    EXPECT_EQ(nothing.text, "");
    EXPECT_EQ(nothing.style, "");
}

TEST(AppointmentConversion, ForeignDaysAndTagsAreNoneAndTextsStay) {
    AppointmentRow row;
    row[Column::TagVariant] = "yesterday";
    row[Column::Date] = "03/12/2026";
    row[Column::Desc] = "line\r\nline";
    const Appointment read = appointmentOf(row);
    EXPECT_EQ(read.tag, Moment{});
    EXPECT_EQ(read.day, std::nullopt);
    EXPECT_EQ(read.text, "line\r\nline");
}

}  // namespace
}  // namespace velmora
