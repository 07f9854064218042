#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <chrono>

#include "app/DialerRoom.h"
#include "core/forms/Calendar.h"
#include "platform/CodePage.h"
#include "platform/Format.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "telephony/forms/DialerPage.h"

namespace velmora::test {

// The main window on 12 March 2026, in view and active, with nothing behind its commands.
class CalendarFixture : public testing::Test {
  protected:
    CalendarFixture() {
        calendar.resize(1180, 760);
        calendar.show();
        calendar.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&calendar));
    }

    LocaleFormats locale;
    DialerPage* dialerPage = new DialerPage;  // the window owns it
    Calendar calendar{
        CodePage::western(),
        locale,
        std::chrono::year(2026) / 3 / 12,
        {new SSDay(CodePage::western()), new PadEdit(CodePage::western()), partsOf(*dialerPage)}};
};

}  // namespace velmora::test
