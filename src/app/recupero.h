// SPDX-License-Identifier: GPL-3.0-or-later
// Work that is typed and not saved, in a file beside the archive that outlives the program.
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "app/meta_memorizzata.h"
#include "guide/annotazioni.h"

namespace cronovia {

/// An entry of the guide that is being typed, in the row of an entry or of a locality.
struct VoceSospesa {
    QString localita;   ///< of that row
    QString mostrata;   ///< description of the entry that is changed; empty: a new one
    CampiVoce scritti;  ///< as they were typed

    friend bool operator==(const VoceSospesa&, const VoceSospesa&) = default;
};

/// All that would be lost with the window.
struct LavoroSospeso {
    MetaMemorizzata letta;            ///< what the archive held when the trip was opened; without code: a new trip
    Meta caricati;                    ///< its fields as they were shown then
    Meta campi;                       ///< and as they are now
    RigheItinerario righe;            ///< the stages as they are now, without visit times
    int riga = 1;                     ///< the current row
    std::optional<CampiTappa> tappa;  ///< typed for that row and not written into it
    std::optional<VoceSospesa> voce;  ///< typed for the guide and not saved

    friend bool operator==(const LavoroSospeso&, const LavoroSospeso&) = default;
};

/// In what the work differs from what was saved, a line for each kind of change.
QStringList Differenze(const LavoroSospeso& lavoro);

/// The files of one data folder. A window writes to one of its own, and holds it, so that no other one's goes.
class Recupero {
  public:
    /// Writes nothing yet.
    explicit Recupero(const QString& cartella) : cartella_(cartella) {}

    /// Writes the file when the work is another than it was, and deletes it when there is none. A `Failure` when it
    /// cannot be written: then the file is as it was.
    void Segui(const std::optional<LavoroSospeso>& lavoro, const QDateTime& adesso);

    /// Paths of the files that were left behind; one that a window holds was not, though it may be too busy to answer.
    [[nodiscard]] QStringList Rimasti() const;
    /// What a file holds.
    struct Trovato {
        LavoroSospeso lavoro;
        QDateTime scritto;  ///< when
    };
    /// Reads one. A `Failure` when it is torn or not one of ours; it is laid aside then under another name.
    [[nodiscard]] Trovato Leggi(const QString& file) const;
    /// Its work is open now: the file is this window's own. A `Failure` when another one was faster.
    void Riprendi(const QString& file, const LavoroSospeso& lavoro);

  private:
    bool Prendi(const QString& file);

    QString cartella_;
    QString file_;                      // this window's own, empty before the first writing
    std::unique_ptr<QLockFile> presa_;  // held as long as there is one; whoever is killed lets it go
    std::optional<LavoroSospeso> scritto_;
};

}  // namespace cronovia
