// SPDX-License-Identifier: GPL-3.0-or-later
// Files of fixed-length records, as the earlier release wrote them.
#pragma once

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <vector>

class QIODevice;

namespace cronovia {

/// The fields, in characters of one byte, stand at the beginning of a record; the rest of it carries nothing.
struct FormaRecord {
    int lunghezza = 0;       ///< of a record, in bytes
    std::vector<int> campi;  ///< length of each, in order

    /// Characters of all fields together.
    [[nodiscard]] int LunghezzaCampi() const;
};

/// A record as it was read.
struct RecordFisso {
    std::vector<QString> campi;     ///< character by character, but for the blanks at their end; zero bytes are blanks
    std::vector<bool> illeggibili;  ///< of the fields: with characters that no program writes into a text

    /// Whether one of the fields is.
    [[nodiscard]] bool Guasto() const {
        return std::find(illeggibili.begin(), illeggibili.end(), true) != illeggibili.end();
    }

    /// A field whose characters have no fixed places, without the blanks around it.
    [[nodiscard]] QString operator[](std::size_t campo) const { return campi[campo].trimmed(); }
};

/// Hands over record after record, in a bounded amount of memory.
class LettoreRecord {
  public:
    /// Whether the device can hold records of that form: one that is whole, or nothing at all.
    static bool Possibile(const QIODevice& device, const FormaRecord& forma);

    /// A `Failure` when it cannot. `path` is its name in messages.
    LettoreRecord(QIODevice& device, FormaRecord forma, const QString& path);

    /// Reads the next record; false at the end. A `Failure` when the device cannot be read.
    bool Leggi(RecordFisso& record);

    /// Whether something of a record stands behind the last whole one, which may itself end behind its fields.
    [[nodiscard]] bool Troncato() const { return troncato_; }
    /// Whole records of the device, those read included.
    [[nodiscard]] qint64 NumeroRecord() const { return numero_; }
    /// Those read.
    [[nodiscard]] qint64 Letti() const { return letti_; }

  private:
    QIODevice& device_;
    FormaRecord forma_;
    QString path_;
    qint64 numero_ = 0;
    qint64 letti_ = 0;
    bool troncato_ = false;
};

}  // namespace cronovia
