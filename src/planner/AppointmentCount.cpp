#include "planner/AppointmentCount.h"

#include "platform/DateText.h"
#include "platform/Failure.h"

namespace velmora {

int AppointmentCount::of(std::chrono::year_month_day day) {
    int count = 0;
    ignoringErrors([&] {
        own_.OpenDatabase(store_.path());  // anew, as another file may lie there by now
        own_.SelectByDate(writeDate(day));
        own_.Refresh();
        for (; !own_.Eof(); own_.MoveNext())
            ++count;
    });
    return count;
}

bool AppointmentCount::isEmpty() {
    bool empty = false;
    ignoringErrors([&] {
        own_.OpenDatabase(store_.path());
        own_.SelectAll();
        own_.Refresh();
        empty = own_.Eof() && !own_.obstacle();
    });
    return empty;
}

}  // namespace velmora
