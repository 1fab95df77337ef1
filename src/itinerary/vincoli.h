// SPDX-License-Identifier: GPL-3.0-or-later
// What others set for a stage: when its ferry leaves, when one has to be there, when its visit is open, and what one
// notes of it. What is not possible cannot be made.
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "calendar/ora_fissa.h"
#include "store/schema.h"

namespace cronovia {

/// A ferry with its own hours.
class TraghettoAOrario {
  public:
    static constexpr int kMassimaNavigazione = 9 * kMinutiDelGiorno;  ///< in minutes

    /// Nothing when the sailing takes no time or more than 9 days, or boarding begins a day before or earlier.
    static std::optional<TraghettoAOrario> Da(const OraFissa& partenza, int minutiNavigazione, int minutiImbarco);

    /// Departure, minutes on board, minutes before the departure; the times of the calculation that these are.
    [[nodiscard]] const OraFissa& Partenza() const { return partenza_; }
    [[nodiscard]] int MinutiNavigazione() const { return navigazione_; }
    [[nodiscard]] int MinutiImbarco() const { return imbarco_; }
    [[nodiscard]] Centesimi Navigazione() const;
    /// How long before the departure one has to be there.
    [[nodiscard]] Centesimi Imbarco() const;
    /// The same on any day.
    [[nodiscard]] TraghettoAOrario SenzaData() const;

    friend bool operator==(const TraghettoAOrario&, const TraghettoAOrario&) = default;

  private:
    TraghettoAOrario(const OraFissa& partenza, int navigazione, int imbarco)
        : partenza_(partenza), navigazione_(navigazione), imbarco_(imbarco) {}

    OraFissa partenza_;
    int navigazione_;
    int imbarco_;
};

/// Between which hours one has to arrive; hours without a day are those of the day of the arrival.
class OreDiArrivo {
  public:
    /// Nothing without an hour, or when none lies between them.
    static std::optional<OreDiArrivo> Da(std::optional<OraFissa> nonPrima, std::optional<OraFissa> nonDopo);

    /// The hours themselves; one of them at least is set.
    [[nodiscard]] const std::optional<OraFissa>& NonPrima() const { return nonPrima_; }
    [[nodiscard]] const std::optional<OraFissa>& NonDopo() const { return nonDopo_; }

    friend bool operator==(const OreDiArrivo&, const OreDiArrivo&) = default;

  private:
    OreDiArrivo(std::optional<OraFissa> nonPrima, std::optional<OraFissa> nonDopo)
        : nonPrima_(nonPrima), nonDopo_(nonDopo) {}

    std::optional<OraFissa> nonPrima_;
    std::optional<OraFissa> nonDopo_;
};

/// When what is visited at a stage is open.
class OreDiVisita {
  public:
    /// In minutes since midnight, up to 24:00; nothing when it closes before it opens.
    static std::optional<OreDiVisita> Da(int apre, int chiude);

    /// In minutes since midnight; as times of the calculation.
    [[nodiscard]] int MinutiApertura() const { return apre_; }
    [[nodiscard]] int MinutiChiusura() const { return chiude_; }
    [[nodiscard]] Centesimi Apre() const;
    [[nodiscard]] Centesimi Chiude() const;

    friend bool operator==(const OreDiVisita&, const OreDiVisita&) = default;

  private:
    OreDiVisita(int apre, int chiude) : apre_(apre), chiude_(chiude) {}

    int apre_;
    int chiude_;
};

/// A text that fits its field of `Vincoli` and has no control characters.
template <vincoli::Field kCampo>
class Appunto {
  public:
    Appunto() = default;
    /// Nothing when it is too long, or has such characters. Blanks at its rim go.
    static std::optional<Appunto> Da(const QString& testo);

    [[nodiscard]] const QString& Testo() const { return testo_; }
    friend bool operator==(const Appunto&, const Appunto&) = default;

  private:
    QString testo_;
};

/// An amount of money, from 0,00 to 99999,99.
class Prezzo {
  public:
    /// Nothing beyond these limits.
    static std::optional<Prezzo> Da(int centesimiDiEuro);
    /// Of "45", "45,5", "45.50" or "1.234,50"; nothing for any other text.
    static std::optional<Prezzo> Leggi(const QString& testo);

    [[nodiscard]] int CentesimiDiEuro() const { return centesimi_; }
    [[nodiscard]] QString Testo() const;  ///< "45,50"
    friend bool operator==(const Prezzo&, const Prezzo&) = default;

  private:
    explicit Prezzo(int centesimi) : centesimi_(centesimi) {}

    int centesimi_;
};

/// All that is set or noted for a stage.
struct Vincoli {
    std::optional<TraghettoAOrario> traghetto;
    std::optional<OreDiArrivo> arrivo;
    std::optional<OreDiVisita> visite;  ///< nothing: those of the trip
    Appunto<vincoli::Nota> nota;
    Appunto<vincoli::Telefono> telefono;
    Appunto<vincoli::Link> link;
    Appunto<vincoli::Prenotazione> prenotazione;
    std::optional<Prezzo> prezzoTraghetto;
    std::optional<Prezzo> prezzoNotte;
    std::optional<Prezzo> prezzoIngresso;

    friend bool operator==(const Vincoli&, const Vincoli&) = default;
};

/// What a stage carries of it: a value, which costs next to nothing where there is none.
class VincoliTappa {
  public:
    VincoliTappa() = default;
    /// Nothing of it is the same as none.
    VincoliTappa(Vincoli vincoli);  // NOLINT(google-explicit-constructor)

    /// Whether there is any; what there is, null where there is none.
    explicit operator bool() const { return vincoli_ != nullptr; }
    const Vincoli* operator->() const { return vincoli_.get(); }
    /// What there is; nothing set where there is none.
    [[nodiscard]] Vincoli Valore() const { return vincoli_ ? *vincoli_ : Vincoli(); }
    [[nodiscard]] bool ConTraghetto() const { return vincoli_ && vincoli_->traghetto; }

    friend bool operator==(const VincoliTappa& a, const VincoliTappa& b) {
        return a.vincoli_ == b.vincoli_ || (a.vincoli_ && b.vincoli_ && *a.vincoli_ == *b.vincoli_);
    }

  private:
    std::shared_ptr<const Vincoli> vincoli_;
};

/// What is left of it for a journey on other days: dates go.
VincoliTappa SenzaDate(const VincoliTappa& vincoli);

/// The fields of `Vincoli` from `kPrimoDato` on, which a file has and the command line names.
inline constexpr int kPrimoDato = vincoli::TraghettoOra;
/// A whole row of the table; key and locality stay empty.
std::vector<QString> ValoriDeiVincoli(const Vincoli& vincoli);

/// What a row tells, and how much of it cannot be: hours, prices and texts, each left out.
struct VincoliLetti {
    VincoliTappa vincoli;
    int rifiutati = 0;
};
VincoliLetti LeggiVincoli(std::span<const QString> valori);

/// What is set for a stage in the words of people: "traghetto alle 22:00, navigazione 08:30, imbarco 01:00 prima",
/// "arrivo non prima delle 15:00", "nota: …". Empty where there is nothing.
QStringList TestiVincoli(const VincoliTappa& vincoli);

}  // namespace cronovia
