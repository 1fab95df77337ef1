// SPDX-License-Identifier: GPL-3.0-or-later
// The code page of the text files that travel to other programs.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace cronovia {

/// Every byte has a character: the five that Windows-1252 leaves open are the control characters of the same number.
QString DaWindows1252(QByteArrayView byte);

/// A text in Windows-1252.
struct TestoCodificato {
    QByteArray byte;
    int sostituiti = 0;  ///< characters that travel as another one
};

/// A character that the code page lacks travels as its base letter (Č as C), or as "?" when it has none; so do those
/// in `vietati`, which the file's format needs for itself. An accent that no letter of Unicode carries is left out.
TestoCodificato InWindows1252(QStringView testo, QStringView vietati = {});

}  // namespace cronovia
