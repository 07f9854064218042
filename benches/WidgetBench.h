#pragma once

#include <QApplication>
#include <exception>
#include <iostream>

#include "platform/qt/Theme.h"

namespace velmora::bench {

// The main function of a bench that shows widgets: they look as in Velmora. Gives the exit code of
// `measure`, or 1 when it throws.
template <typename Measure>
int runWidgetBench(int argc, char** argv, Measure measure) {
    try {
        QApplication application(argc, argv);
        applyTheme(application);
        return measure();
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
}

}  // namespace velmora::bench
