// Starts the window.
#pragma once

#include <QString>

namespace cronovia {

/// Opens the main window on a data folder and runs until it is closed; returns the exit code. Without a display, or
/// when the archive cannot be opened, one sentence tells why and the code is 1.
int ApriFinestra(int argc, char* argv[], const QString& cartella);

}  // namespace cronovia
