// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a text file that came from elsewhere and may hold anything.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QIODevice>
#include <QString>
#include <memory>

class QFile;

namespace cronovia {

/// Opens a file for reading. A `Failure` when it is missing, no file, or cannot be read.
std::unique_ptr<QFile> ApriInLettura(const QString& path);

/// What tells whether a file is still the one that was read before.
struct StatoFile {
    qint64 byte = -1;  ///< -1 when there is none
    QDateTime modificato;

    friend bool operator==(const StatoFile&, const StatoFile&) = default;
};

/// Size and time of a file; never a `Failure`.
StatoFile StatoDelFile(const QString& path);

/// Hands over line after line, ended by CR LF or by LF alone, in a bounded amount of memory.
class LettoreRighe {
  public:
    /// A longer line is passed over.
    static constexpr qsizetype kMassimo = 64 * 1024;

    /// Reads from where the device stands, which must outlive the reader.
    explicit LettoreRighe(QIODevice& device) : device_(device) {}

    /// Goes to the next line; false after the last one. A `Failure` when the device cannot be read.
    bool Avanza();

    /// The line without its end, until the next `Avanza`; empty when it is too long.
    [[nodiscard]] QByteArrayView Riga() const { return riga_; }
    [[nodiscard]] bool TroppoLunga() const { return troppoLunga_; }

    /// Bytes of the lines so far.
    [[nodiscard]] qint64 Letti() const { return letti_; }

  private:
    bool Riempi();
    void Consegna(qsizetype fine, qsizetype seguente);

    QIODevice& device_;
    QByteArray buffer_{2 * kMassimo, Qt::Uninitialized};
    qsizetype inizio_ = 0;  // bytes of the buffer that no line has taken
    qsizetype fine_ = 0;
    QByteArrayView riga_;
    bool troppoLunga_ = false;
    qint64 letti_ = 0;
};

}  // namespace cronovia
