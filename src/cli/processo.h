// SPDX-License-Identifier: GPL-3.0-or-later
// A verb as a process of its own.
#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <memory>

#include "cli/verbi.h"

namespace cronovia {

/// The words of a process's line, the program's name first.
QStringList Riga(int argc, char* argv[]);

/// Makes the application that a process needs, with graphics or without; `argc` and `argv` outlive it.
using CreaApplicazione = std::unique_ptr<QCoreApplication> (*)(int& argc, char* argv[]);

/// Runs the line within an application made for it, between standard output and standard error; returns the exit code.
int EseguiProcesso(int argc, char* argv[], CreaApplicazione crea, const Stampe& stampe);

}  // namespace cronovia
