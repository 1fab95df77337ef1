// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the program that needs a window system: the window itself, and what draws pages. It is a library that is
// loaded when a line asks for one of them, so that all other lines start without it.
#pragma once

#include <QtGlobal>

/// The name of the library's file, without its ending.
#define CRONOVIA_GRAFICA "cronovia_grafica"

extern "C" {

/// Runs the whole program for one line and returns its exit code. Nothing but plain C passes between program and
/// library: each has its own copy of what lies below.
using EseguiConLaGrafica = int (*)(int argc, char* argv[]);
}
