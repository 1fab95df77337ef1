// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a text file as texts, whichever of the usual encodings the file has.
#pragma once

#include <QIODevice>
#include <QString>
#include <memory>

#include "files/lettore_righe.h"

namespace cronovia {

/// A device whose text is UTF-16, told as below, as UTF-8 from where it stands, which it must outlive; null for any
/// other.
std::unique_ptr<QIODevice> ComeUtf8(QIODevice& device);

/// UTF-16 in both byte orders, told by its mark or by its bytes; else each line is UTF-8 when it can be, else
/// Windows-1252. Needs a bounded amount of memory whatever the file holds.
class RigheTesto {
  public:
    /// Looks at the beginning of the device, which must outlive it.
    explicit RigheTesto(QIODevice& device);
    RigheTesto(const RigheTesto&) = delete;
    RigheTesto& operator=(const RigheTesto&) = delete;
    ~RigheTesto();

    /// Goes to the next line; false after the last one. A `Failure` when the device cannot be read.
    bool Avanza();

    /// The line: any blank or control character but Tab is one blank, letters are composed. Empty when it is too long.
    [[nodiscard]] const QString& Testo() const { return testo_; }
    /// Whether it was longer than `LettoreRighe::kMassimo` bytes.
    [[nodiscard]] bool TroppoLunga() const { return righe_.TroppoLunga(); }

  private:
    std::unique_ptr<QIODevice> utf8_;  // the device's UTF-16 as UTF-8
    LettoreRighe righe_;
    QString testo_;
};

}  // namespace cronovia
