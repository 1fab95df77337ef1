// SPDX-License-Identifier: GPL-3.0-or-later
// What the guide screen works on: the guide list of a trip, the row that is current in it, and the changes made.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "app/storia.h"
#include "guide/annotazioni.h"
#include "interaction/interaction.h"
#include "itinerary/elenco_guida.h"

namespace cronovia {

/// Commands write to the archive at once. What goes wrong in it is a `Failure`, and the state stays as it was.
class TavoloGuida {
  public:
    /// The list as it was at one moment.
    using Righe = std::shared_ptr<const std::vector<RigaGuida>>;

    /// Lays out the guide of a trip; a `Failure` when it has no stored stages. Its changes are steps of the history,
    /// which outlives it.
    TavoloGuida(Archive& archive, Interaction& interaction, const QString& codiceMeta, Storia& storia);
    TavoloGuida(const TavoloGuida&) = delete;
    TavoloGuida& operator=(const TavoloGuida&) = delete;
    ~TavoloGuida() { storia_.Dimentica(Ambito::Guida); }

    /// Another list after every change.
    [[nodiscard]] const Righe& Elenco() const { return elenco_; }
    /// The stages were deleted meanwhile: there is nothing left to list.
    [[nodiscard]] bool SenzaTappe() const { return senzaTappe_; }
    /// From 1; what stands there.
    [[nodiscard]] int RigaCorrente() const { return rigaCorrente_; }
    [[nodiscard]] const RigaGuida& Corrente() const { return (*elenco_)[static_cast<std::size_t>(rigaCorrente_ - 1)]; }
    /// On offer for its entries.
    [[nodiscard]] const std::vector<TipoGuida>& Tipi() const { return tipi_; }
    /// What the fields are to hold.
    [[nodiscard]] const CampiVoce& Campi() const { return campi_; }
    [[nodiscard]] Archive& Archivio() const { return archive_; }
    [[nodiscard]] const QString& CodiceMeta() const { return codiceMeta_; }

    /// What the fields hold now: not saved, and `Modificata` while it differs from what they were to hold.
    [[nodiscard]] const CampiVoce& Scritti() const { return scritti_; }
    void Scrivi(const CampiVoce& campi) { scritti_ = campi; }
    /// Choosing a type or a time for an entry without a text yet is no change.
    [[nodiscard]] bool Modificata() const {
        return scritti_ != campi_ && (Corrente().voce || !scritti_.descrizione.trimmed().isEmpty());
    }

    /// Where a row of an earlier list is now.
    [[nodiscard]] int RigaDi(const RigaGuida& riga) const;
    /// Makes a row the current one, the last when there are not so many, and loads the fields from it.
    void VaiAllaRiga(int riga);
    /// Saves the fields in the place of the entry of the current row, or as a new one from a locality's row. Tells why
    /// they cannot be saved, also when the same is there already; false then.
    bool SalvaRiga(CampiVoce campi);
    /// What was typed goes to the archive and nowhere else, for a program that ends. A `Failure` when it cannot be
    /// saved.
    void SalvaScritti();
    /// Deletes the entry of the current row; a locality's row stays as it is.
    void CancellaRiga();

  private:
    void CreaElenco();
    void Mostra(const CampiVoce& campi);
    [[nodiscard]] bool GiaPresente(const CampiVoce& campi) const;
    [[nodiscard]] Passo PassoDi(const QString& nome, ModificaGuida modifica);
    ModificaGuida Disfa(const QString& nome, const ModificaGuida& modifica);
    [[nodiscard]] int RigaDi(const QString& localita, std::optional<std::int64_t> voce) const;

    Archive& archive_;
    Interaction& interaction_;
    QString codiceMeta_;
    std::vector<TipoGuida> tipi_;
    Righe elenco_;
    bool senzaTappe_ = false;
    int rigaCorrente_ = 1;
    CampiVoce campi_;
    CampiVoce scritti_;
    Storia& storia_;
};

}  // namespace cronovia
