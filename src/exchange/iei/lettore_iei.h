// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange file: three sections of lines, trips, stages and city guide, each with the names of its fields on top.
// Every value ends with the section's separator byte, so that the byte tells the section of a line.
#pragma once

#include <QString>
#include <array>
#include <map>
#include <optional>
#include <span>
#include <vector>

#include "exchange/iei/separa_colonne.h"
#include "files/lettore_righe.h"
#include "interaction/progress.h"
#include "store/schema.h"

class QIODevice;

namespace cronovia {

/// The separator of a section, which is numbered as its table: FF trips, FE stages, FD guide.
constexpr char SeparatoreSezione(Table tabella) { return static_cast<char>(0x100 - static_cast<int>(tabella)); }

/// What a section may have behind its own fields: those of tables that are about the same records, from `primo` on,
/// behind their key.
struct CampiAggiunti {
    Table tabella;
    int primo;
};
/// Those of a section; none for the guide.
std::span<const CampiAggiunti> AggiuntiAllaSezione(Table tabella);

/// One record of an exchange file.
struct RigaIei {
    Table tabella = Table::MeteVandro;
    std::vector<QString> valori;  ///< in the order of the table's fields; empty where the file has none
    /// Of the other tables, in the order of their fields; a table is missing where none of its fields is filled.
    std::map<Table, std::vector<QString>> aggiunti = {};
};

/// What a reader found and could not take as it stood.
struct ScartiLettura {
    qint64 righePrimaDelleSezioni = 0;  ///< before the first line with a section's byte
    qint64 righeNonCapite = 0;          ///< of a section whose field names were not met before
    qint64 righeTroppoLunghe = 0;       ///< passed over
    qint64 righeIncomplete = 0;         ///< records with fewer values than field names; they are taken
    qint64 caratteriTolti = 0;          ///< double quotes and control characters
    qint64 valoriInPiu = 0;             ///< beyond the field names, or beyond the hundredth
};

/// What a reading is about.
struct Lettura {
    std::optional<Table> solo;  ///< the only section to read; nothing for all of them
    QString titoloPrima;        ///< the title of the progress is this, the table's name and the next text
    QString titoloDopo;
};

/// Reads the records of an exchange file one by one, in a bounded amount of memory whatever the file holds.
class LettoreIei {
  public:
    /// Reads from where the device stands; device and progress must outlive it.
    LettoreIei(QIODevice& device, Lettura lettura, Progress& progress);

    /// Reads the next record; false at the end. A `Failure` when the device cannot be read, `Stopped` on a stop.
    bool Leggi(RigaIei& riga);

    /// Whether the field names of the section were met.
    [[nodiscard]] bool Conosce(Table tabella) const { return !Mappa(tabella).empty(); }
    /// Whether the field is among those of the section's present head.
    [[nodiscard]] bool HaCampo(Table tabella, int campo) const;
    /// Of what was read so far.
    [[nodiscard]] const ScartiLettura& Scarti() const { return scarti_; }

  private:
    using MappaColonne = std::vector<int>;  // position of the field that each column holds, -1 for none

    [[nodiscard]] const MappaColonne& Mappa(Table tabella) const;
    bool CambiaSezione(QByteArrayView testo);
    bool Prendi(QByteArrayView testo, bool inizioSezione, RigaIei& riga);
    void Riempi(const Colonne& colonne, RigaIei& riga);

    LettoreRighe righe_;
    Lettura lettura_;
    Progress& progress_;
    double lunghezza_;
    bool prima_ = true;  // no line was read yet
    std::optional<Table> sezione_;
    std::array<MappaColonne, 3> mappe_;
    ScartiLettura scarti_;
};

}  // namespace cronovia
