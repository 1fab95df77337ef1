// SPDX-License-Identifier: GPL-3.0-or-later
// The display that the benchmarks of the window paint on.
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace cronovia {

/// The person's display when there is one, else one in memory. To be called before the application is made.
inline void PreparaSchermo() {
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!display && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// The main function of a benchmark that paints.
inline int MisuraSulloSchermo(int argc, char* argv[]) {
    PreparaSchermo();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace cronovia
