#include "core/SettingKeys.h"

#include <gtest/gtest.h>

#include "core/SettingsStore.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

class SettingKeysTest : public testing::Test {
  protected:
    // What a reader takes a value for.
    template <typename Key>
    auto reads(const Key& key, std::string_view name, std::string_view stored) {
        settings.Save(name, stored);
        return settings.read(key);
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
};

TEST_F(SettingKeysTest, EmptyValuesReadAsTheTableSays) {
    EXPECT_FALSE(settings.read(keys::TwentyFourHours));
    EXPECT_TRUE(settings.read(keys::EventStart));
    EXPECT_EQ(settings.read(keys::EventDays), 0);
    EXPECT_EQ(settings.read(keys::PlannerStart), 0);
    EXPECT_EQ(settings.read(keys::PlannerEnd), 23);
    EXPECT_EQ(settings.read(keys::AlarmSound), "");
    EXPECT_FALSE(settings.read(keys::KeepDoc));
    EXPECT_FALSE(settings.read(keys::Wordwrap));
    EXPECT_TRUE(settings.read(keys::Header));
    EXPECT_EQ(settings.read(keys::ComPort), "");
    EXPECT_EQ(settings.read(keys::ComType), 0U);
    EXPECT_FALSE(settings.read(keys::LogPhone));
    EXPECT_FALSE(settings.read(keys::CallerId));
    EXPECT_EQ(settings.read(keys::Dialer), "\\dialer.exe");
    EXPECT_FALSE(settings.read(keys::IEEnhanced));
    EXPECT_EQ(settings.read(keys::EMailSettings), "");
    EXPECT_EQ(settings.read(keys::Custom1), "Custom1");
    EXPECT_EQ(settings.read(keys::Custom1OnForm), "Custom1:");
    EXPECT_EQ(settings.read(keys::Custom2OnForm), "Custom2");
    EXPECT_EQ(settings.read(keys::Custom2InSearch), "Custom 2");
    EXPECT_FALSE(settings.read(keys::LetterTab));
    EXPECT_TRUE(settings.read(keys::LetterTel));
    EXPECT_EQ(keys::kEnvelopePositions.at(settings.read(keys::EnvelopePrinting).value()), "Center");
    EXPECT_FALSE(settings.read(keys::EnvelopeAtTop));
}

TEST_F(SettingKeysTest, PreferencesShowOtherValuesForSomeEmptyOnes) {
    EXPECT_FALSE(settings.read(inPreferences(keys::EventStart)));
    EXPECT_FALSE(settings.read(inPreferences(keys::Header)));
    EXPECT_FALSE(settings.read(inPreferences(keys::LetterTel)));
    EXPECT_TRUE(settings.read(inPreferences(keys::IEEnhanced)));
    EXPECT_EQ(settings.read(inPreferences(keys::AlarmSound)), "none");
    EXPECT_EQ(settings.read(inPreferences(keys::EMailSettings)), "/n");
    EXPECT_EQ(settings.read(inPreferences(keys::ComPort)), "COM1");
    EXPECT_EQ(settings.read(inPreferences(keys::Dialer)), "\\dialer.exe");
    EXPECT_EQ(settings.read(inPreferences(keys::Custom1)), "");
    EXPECT_EQ(settings.read(inPreferences(keys::PlannerEnd)), 23);
    EXPECT_EQ(settings.read(inPreferences(keys::ComType)), 0U);
    EXPECT_EQ(settings.read(inPreferences(keys::EnvelopePrinting)),
              settings.read(keys::EnvelopePrinting));
}

TEST_F(SettingKeysTest, PreferencesShowStoredValuesInAnyCase) {
    EXPECT_EQ(reads(inPreferences(keys::ComType), "ComType", " PULSE"), 1U);
    EXPECT_TRUE(reads(inPreferences(keys::EnvelopeAtTop), "EnvTop", "on"));
    EXPECT_FALSE(reads(inPreferences(keys::IEEnhanced), "IEEnhanced", "no"));
    EXPECT_TRUE(reads(inPreferences(keys::LogPhone), "LogPhone", "1"));
}

TEST_F(SettingKeysTest, SwitchesAreTrimmedAndReadInAnyCase) {
    EXPECT_TRUE(reads(keys::TwentyFourHours, "24hr", " yes "));
    EXPECT_FALSE(reads(keys::TwentyFourHours, "24HR", "1"));
    EXPECT_TRUE(reads(keys::CallerId, "CallerID", "on"));
    EXPECT_FALSE(reads(keys::EventStart, "EventStart", " "));
    EXPECT_FALSE(reads(keys::LetterTel, "LetterTel", "yes"));
}

TEST_F(SettingKeysTest, SomeValuesCountOnlyByTheirExactLetters) {
    EXPECT_FALSE(reads(keys::CallerIdAtStart, "CallerID", "on"));
    EXPECT_TRUE(reads(keys::CallerIdAtStart, "CallerID", "ON"));
    EXPECT_FALSE(reads(keys::EnvelopeAtTop, "EnvTop", " ON"));
    EXPECT_EQ(reads(keys::ComType, "ComType", "Pulse"), 1U);
    EXPECT_EQ(reads(keys::ComType, "ComType", "pulse"), std::nullopt);
}

TEST_F(SettingKeysTest, SomeSwitchesAreNumbers) {
    EXPECT_TRUE(reads(keys::LogPhone, "LogPhone", " 1.0"));
    EXPECT_FALSE(reads(keys::LogPhone, "LogPhone", "10"));
    EXPECT_TRUE(reads(keys::LetterTab, "LetterTab", "01"));
}

TEST_F(SettingKeysTest, NumbersStayWithinTheirBounds) {
    EXPECT_EQ(reads(keys::EventDays, "EventDays", "-3"), 0);
    EXPECT_EQ(reads(keys::EventDays, "EventDays", "99999999"), 36525);
    EXPECT_EQ(reads(keys::EventDays, "EventDays", "7 days"), 7);
}

TEST_F(SettingKeysTest, AnHourOfZeroCountsAsEmpty) {
    EXPECT_EQ(reads(keys::PlannerEnd, "PlannerEnd", "00"), 23);
    EXPECT_EQ(reads(keys::PlannerEnd, "PlannerEnd", "none"), 23);
    EXPECT_EQ(reads(keys::PlannerEnd, "PlannerEnd", "17"), 17);
    EXPECT_EQ(reads(keys::PlannerStart, "PlannerStart", "08"), 8);
}

TEST_F(SettingKeysTest, ChoicesThatAreNoneOfTheKeysAreNothing) {
    EXPECT_EQ(reads(keys::EnvelopePrinting, "EnvelopePrinting", " left"), 0U);
    EXPECT_EQ(reads(keys::EnvelopePrinting, "EnvelopePrinting", "top"), std::nullopt);
}

TEST_F(SettingKeysTest, FoldersAndCaptionsComeWithoutTheirBlanksAndOtherTextsAsTheyStand) {
    EXPECT_EQ(reads(keys::White, "White", "  /books "), "/books");
    EXPECT_EQ(reads(keys::Custom2, "Custom2", "  "), "Custom2");
    EXPECT_FALSE(settings.has(keys::Custom2));
    EXPECT_EQ(reads(keys::ComPrefix, "ComPrefix", " 9,"), " 9,");
}

TEST_F(SettingKeysTest, SwitchesAreStoredInTheTextsOfTheirKey) {
    settings.save(keys::TwentyFourHours, true);
    settings.save(keys::CallerId, false);
    settings.save(keys::Header, false);
    EXPECT_EQ(settings.Read("24hr"), "YES");
    EXPECT_EQ(settings.Read("CallerID"), "OFF");
    EXPECT_EQ(settings.Read("Header"), "0");
}

}  // namespace
}  // namespace velmora
