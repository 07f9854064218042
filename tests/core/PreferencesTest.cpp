#include "core/Preferences.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "support/FakeMessages.h"
#include "support/FakeSound.h"
#include "support/FakeStatusLine.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

// Remembers in which order keys are written.
class OrderedSettings final : public SettingsMedium {
  public:
    [[nodiscard]] std::string read(std::string_view key) const override { return inner.read(key); }
    [[nodiscard]] std::string readOrFail(std::string_view key) const override {
        return inner.readOrFail(key);
    }
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const override {
        return inner.readAll(prefix);
    }
    void save(std::string_view key, std::string_view value) override {
        inner.save(key, value);
        written.push_back(std::string(key) + "=" + std::string(value));
    }
    void remove(std::string_view key) override {
        inner.remove(key);
        written.push_back("-" + std::string(key));
    }
    void batch(const std::function<void()>& changes) override {
        ++batches;
        inner.batch(changes);
    }

    test::MemorySettings inner;
    std::vector<std::string> written;
    int batches = 0;
};

class PreferencesTest : public testing::Test {
  protected:
    template <typename Value>
    Value shown(std::string_view key) const {
        return std::get<Value>(preferences.shown().at(preferenceRowOf(key)));
    }
    [[nodiscard]] std::string text(std::string_view key) const { return shown<std::string>(key); }
    [[nodiscard]] bool ticked(std::string_view key) const { return shown<bool>(key); }
    [[nodiscard]] int number(std::string_view key) const { return shown<int>(key); }
    [[nodiscard]] std::optional<std::size_t> option(std::string_view key) const {
        return shown<std::optional<std::size_t>>(key);
    }

    // What is shown, but for one control that the user changes.
    void applyWith(std::string_view key, const PreferenceValue& value) {
        PreferenceValues values = preferences.shown();
        values.at(preferenceRowOf(key)) = value;
        EXPECT_TRUE(preferences.apply(values));
    }
    [[nodiscard]] std::string stored(std::string_view key) const { return medium.inner.read(key); }

    OrderedSettings medium;
    SettingsStore settings{medium};
    test::MemoryFiles files;
    test::FakeSound sound;
    test::FakeMessages messages;
    test::FakeStatusLine status;
    std::vector<std::string> effects;
    Preferences preferences{{settings,
                             files,
                             sound,
                             messages,
                             status,
                             CodePage::western(),
                             [](const std::function<void()>& work) { work(); },
                             "/usr/bin",
                             {.movePlanner =
                                  [this](const std::string& folder) {
                                      effects.push_back("planner|" + folder + "|" +
                                                        stored("PlannerEnd"));
                                  },
                              .setDayLimits = [this] { effects.emplace_back("limits"); }}}};
};

TEST_F(PreferencesTest, ShowWhatTheTableSaysWhereNothingIsStored) {
    for (const char* key : {"Browser", "EMail", "ComPrefix", "ComInit", "LocalAreaCode",
                            "DefaultSal", "Custom1", "Custom2", "White", "Yellow", "Calendar"})
        EXPECT_EQ(text(key), "") << key;
    EXPECT_EQ(text("EMailSettings"), "/n");
    EXPECT_EQ(text("Dialer"), "/usr/bin\\dialer.exe");
    EXPECT_EQ(text("AlarmSound"), "none");
    for (const char* key : {"LogPhone", "LetterTel", "LetterTab", "EventStart", "Wordwrap",
                            "Header", "KeepDoc", "EnvTop", "CallerID"})
        EXPECT_FALSE(ticked(key)) << key;
    EXPECT_TRUE(ticked("IEEnhanced"));
    EXPECT_EQ(option("ComPort"), 0U);
    EXPECT_EQ(option("ComType"), 0U);
    EXPECT_EQ(option("EnvelopePrinting"), 1U);
    EXPECT_EQ(number("EventDays"), 0);
    EXPECT_EQ(number("PlannerStart"), 0);
    EXPECT_EQ(number("PlannerEnd"), 23);
}

TEST_F(PreferencesTest, EachRowHasControlsOfItsOwn) {
    std::set<std::string_view> names;
    std::size_t count = 0;
    for (const PreferenceRow& row : preferenceRows())
        for (const std::string_view name : row.controls)
            if (!name.empty()) {
                names.insert(name);
                ++count;
            }
    EXPECT_EQ(names.size(), count);
    EXPECT_EQ(preferenceRows().size(), 30U);
}

TEST_F(PreferencesTest, StoreAllInTheirOrderAndInOneBatch) {
    ASSERT_TRUE(preferences.apply(preferences.shown()));
    EXPECT_THAT(
        medium.written,
        ElementsAre("Browser=", "EMail=", "EMailSettings=/n", "IEEnhanced=YES", "ComPort=COM1",
                    "ComPort=COM1", "ComType=Tone", "ComPrefix=", "ComInit=", "LocalAreaCode=",
                    "Dialer=/usr/bin\\dialer.exe", "LogPhone=0", "LetterTel=0", "LetterTab=0",
                    "DefaultSal=", "Custom1=", "Custom2=", "EventStart=0", "Wordwrap=0", "Header=0",
                    "KeepDoc=0", "EnvelopePrinting=Center", "EnvTop=OFF", "CallerID=OFF",
                    "EventDays=0", "PlannerStart=00", "PlannerEnd=23",
                    "White=", "Yellow=", "Calendar=", "AlarmSound=none"));
    EXPECT_EQ(medium.batches, 1);
}

TEST_F(PreferencesTest, ThePlannerMovesWhenAllIsStoredAndTheDayGetsItsHoursLast) {
    applyWith("Calendar", std::string("/shared"));
    EXPECT_THAT(effects, ElementsAre("planner|/shared|23", "limits"));
}

TEST_F(PreferencesTest, ThePortIsWrittenAsTheFirstOneBeforeTheChosenOne) {
    applyWith("ComPort", std::optional<std::size_t>(6));
    const auto first = std::ranges::find(medium.written, "ComPort=COM1");
    ASSERT_NE(first, medium.written.end());
    EXPECT_EQ(*std::next(first), "ComPort=COM7");
    EXPECT_EQ(option("ComPort"), 6U);
}

TEST_F(PreferencesTest, EachSwitchIsStoredInItsTwoTexts) {
    struct Switch {
        const char* key;
        const char* on;
        const char* off;
    };
    for (const Switch& each : {Switch{"IEEnhanced", "YES", "NO"},
                               {"CallerID", "ON", "OFF"},
                               {"EnvTop", "ON", "OFF"},
                               {"LogPhone", "1", "0"},
                               {"LetterTel", "1", "0"},
                               {"LetterTab", "1", "0"},
                               {"EventStart", "1", "0"},
                               {"Wordwrap", "1", "0"},
                               {"Header", "1", "0"},
                               {"KeepDoc", "1", "0"}}) {
        applyWith(each.key, true);
        EXPECT_EQ(stored(each.key), each.on) << each.key;
        EXPECT_TRUE(ticked(each.key)) << each.key;
        applyWith(each.key, false);
        EXPECT_EQ(stored(each.key), each.off) << each.key;
        EXPECT_FALSE(ticked(each.key)) << each.key;
    }
}

TEST_F(PreferencesTest, EachTextIsStoredAsItWasTyped) {
    for (const char* key :
         {"Browser", "EMail", "EMailSettings", "ComPrefix", "ComInit", "LocalAreaCode", "Dialer",
          "DefaultSal", "Custom1", "Custom2", "White", "Yellow", "Calendar", "AlarmSound"}) {
        applyWith(key, std::string("  a \"b\" \xE4 "));
        EXPECT_EQ(stored(key), "  a \"b\" \xE4 ") << key;
    }
}

TEST_F(PreferencesTest, EachChoiceIsStoredByItsText) {
    for (const auto& [option, text] :
         std::map<std::size_t, const char*>{{0, "Left"}, {1, "Center"}, {2, "Right"}}) {
        applyWith("EnvelopePrinting", std::optional(option));
        EXPECT_EQ(stored("EnvelopePrinting"), text);
    }
    applyWith("ComType", std::optional<std::size_t>(1));
    EXPECT_EQ(stored("ComType"), "Pulse");
}

TEST_F(PreferencesTest, ChoicesAreShownInAnyCase) {
    settings.Save("ComPort", " com5");
    settings.Save("ComType", "PULSE");
    settings.Save("EnvelopePrinting", "right");
    EXPECT_EQ(option("ComPort"), 4U);
    EXPECT_EQ(option("ComType"), 1U);
    EXPECT_EQ(option("EnvelopePrinting"), 2U);
}

TEST_F(PreferencesTest, AChoiceThatIsNoneOfTheKeysStaysAsItWasButForThePort) {
    settings.Save("ComPort", "COM12");
    settings.Save("ComType", "Morse");
    settings.Save("EnvelopePrinting", "Above");
    EXPECT_EQ(option("ComPort"), 0U);
    EXPECT_EQ(option("ComType"), std::nullopt);
    EXPECT_EQ(option("EnvelopePrinting"), std::nullopt);
    ASSERT_TRUE(preferences.apply(preferences.shown()));
    EXPECT_EQ(stored("ComPort"), "COM1");
    EXPECT_EQ(stored("ComType"), "Morse");
    EXPECT_EQ(stored("EnvelopePrinting"), "Above");
}

TEST_F(PreferencesTest, AnEmptySoundIsStoredAsNone) {
    applyWith("AlarmSound", std::string());
    EXPECT_EQ(stored("AlarmSound"), "none");
    EXPECT_EQ(text("AlarmSound"), "none");
}

TEST_F(PreferencesTest, EmptyArgumentsOfTheMailProgramAreStoredAndTheirDefaultOfferedAgain) {
    applyWith("EMailSettings", std::string());
    EXPECT_EQ(stored("EMailSettings"), "");
    EXPECT_EQ(text("EMailSettings"), "/n");
}

TEST_F(PreferencesTest, AnEndBeforeTheStartFollowsIt) {
    PreferenceValues values = preferences.shown();
    values.at(preferenceRowOf("PlannerStart")) = 9;
    values.at(preferenceRowOf("PlannerEnd")) = 8;
    ASSERT_TRUE(preferences.apply(values));
    EXPECT_EQ(stored("PlannerStart"), "09");
    EXPECT_EQ(stored("PlannerEnd"), "10");
    EXPECT_EQ(endOfHours(23, 5), 23);
    EXPECT_EQ(endOfHours(22, 5), 23);
    EXPECT_EQ(endOfHours(9, 9), 9);
    EXPECT_EQ(endOfHours(9, 17), 17);
}

TEST_F(PreferencesTest, AnEndOfMidnightComesBackAsTheLastHour) {
    applyWith("PlannerEnd", 0);
    EXPECT_EQ(stored("PlannerEnd"), "00");
    EXPECT_EQ(number("PlannerEnd"), 23);
}

TEST_F(PreferencesTest, HoursOfAnyTextAreShownWithinTheDay) {
    const std::map<std::string, std::pair<int, int>> hours{
        {"", {0, 23}},  {"0", {0, 23}},      {"00", {0, 23}},     {"abc", {0, 23}},
        {"7", {7, 7}},  {"08", {8, 8}},      {"7.6", {8, 8}},     {"99", {23, 23}},
        {"-5", {0, 0}}, {"12:30", {12, 12}}, {"1e300", {23, 23}}, {"\n 9", {9, 9}}};
    for (const auto& [text, expected] : hours) {
        settings.Save("PlannerStart", text);
        settings.Save("PlannerEnd", text);
        EXPECT_EQ(number("PlannerStart"), expected.first) << text;
        EXPECT_EQ(number("PlannerEnd"), expected.second) << text;
    }
}

TEST_F(PreferencesTest, DaysOfAnyTextAreShownWithinTheirRange) {
    for (const auto& [text, days] : std::map<std::string, int>{
             {"-3", 0}, {"14 days", 14}, {"x", 0}, {"99999999999", 36525}, {"1000", 1000}}) {
        settings.Save("EventDays", text);
        EXPECT_EQ(number("EventDays"), days) << text;
    }
    applyWith("EventDays", 30);
    EXPECT_EQ(stored("EventDays"), "30");
}

TEST_F(PreferencesTest, AnEmptyBoxOffersTheProgramThatASettingNamesUpToItsFirstBlank) {
    settings.Save("http\\shell\\open\\command", "/usr/bin/surf -x %1");
    settings.Save("mailto\\shell\\open\\command", "mutt");
    EXPECT_EQ(text("Browser"), "/usr/bin/surf");
    EXPECT_EQ(text("EMail"), "mutt");
    settings.Save("Browser", "own browser");
    EXPECT_EQ(text("Browser"), "own browser");
}

TEST_F(PreferencesTest, NothingIsStoredWhenOneValueCanNotBe) {
    settings.Save("White", "/before");
    const auto before = medium.inner.values;
    PreferenceValues values = preferences.shown();
    values.at(preferenceRowOf("White")) = std::string("/after");
    medium.inner.failing = true;
    EXPECT_FALSE(preferences.apply(values));
    EXPECT_EQ(medium.inner.values, before);
    EXPECT_THAT(effects, IsEmpty());
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("warn|Velmora|The preferences could not be stored, and all of them are "
                            "as they were. The settings can not be written."));
}

TEST_F(PreferencesTest, PlayNowPlaysAFileThatIsThereAndSaysWhereThereIsNone) {
    files["/sounds/gong.wav"] = "RIFF";
    preferences.playNow("/sounds/gong.wav");
    EXPECT_THAT(sound.takeHeard(), ElementsAre("play /sounds/gong.wav"));
    preferences.playNow("none");
    EXPECT_THAT(sound.takeHeard(), IsEmpty());
    EXPECT_THAT(status.text, StartsWith("There is no such sound file"));
}

TEST_F(PreferencesTest, TheFileDialogsAskForSoundsAndPrograms) {
    messages.willAnswer(std::optional<std::string>("/a.wav"));
    EXPECT_EQ(preferences.chooseSound(), "/a.wav");
    messages.willAnswer(std::nullopt);
    EXPECT_EQ(preferences.chooseProgram(), std::nullopt);
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("open|Select Sound File|.wav|Wave Files (*.wav)|*.wav|All Files "
                            "(*.*)|*.*",
                            "open|Select Program File|.exe|Programs (*.exe)|*.exe|All Files "
                            "(*.*)|*.*"));
}

}  // namespace
}  // namespace velmora
