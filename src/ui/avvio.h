// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the window.
#pragma once

#include <QString>

namespace cronovia {

/// Opens the main window on a data folder, with the import of an exchange file when one is named, and runs until it is
/// closed; returns the exit code. A window that is open on that folder already comes to the front in its place. Without
/// a display, or when the archive cannot be opened, one sentence tells why and the code is 1.
int ApriFinestra(int argc, char* argv[], const QString& cartella, const QString& file = {});

}  // namespace cronovia
