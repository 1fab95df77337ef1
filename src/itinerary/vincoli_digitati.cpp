// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/vincoli_digitati.h"

#include <algorithm>
#include <array>

#include "calendar/digitati.h"
#include "calendar/durata.h"
#include "calendar/ora_fissa.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kOre = {vincoli::TraghettoOra, vincoli::Imbarco,  vincoli::NonPrimaOra,
                             vincoli::NonDopoOra,   vincoli::VisiteDa, vincoli::VisiteA};
constexpr std::array kDate = {vincoli::TraghettoData, vincoli::NonPrimaData, vincoli::NonDopoData};

class LettoreDigitati {
  public:
    explicit LettoreDigitati(std::vector<QString> testi) : testi_(std::move(testi)) {
        for (QString& testo : testi_) testo = testo.trimmed();
    }

    VincoliDigitati Leggi() {
        for (int campo = kPrimoDato; campo < vincoli::kCampi; ++campo) {
            Forma(campo);
            if (difetto_) return {{}, difetto_};
        }
        Insieme();
        if (difetto_) return {{}, difetto_};
        return {LeggiVincoli(testi_).vincoli, {}};
    }

  private:
    [[nodiscard]] QString& Testo(int campo) { return testi_[static_cast<std::size_t>(campo)]; }
    [[nodiscard]] bool Manca(int campo) { return Testo(campo).isEmpty(); }
    void Rifiuta(int campo, const QString& messaggio) {
        if (!difetto_) difetto_ = {campo, messaggio};
    }

    // A field on its own; it gets the form that is stored.
    void Forma(int campo) {
        QString& testo = Testo(campo);
        if (testo.isEmpty()) return;
        const auto tra = [&](const auto& campi) { return std::find(campi.begin(), campi.end(), campo) != campi.end(); };
        if (tra(kOre)) return FormaOra(campo);
        if (tra(kDate)) {
            const std::optional<NumeroGiorno> giorno = LeggiDataDigitata(testo);
            if (!giorno) return Rifiuta(campo, NonData(testo));
            testo = DataMemorizzata(*giorno);
        } else if (campo == vincoli::Navigazione) {
            FormaNavigazione(testo);
        } else if (campo >= vincoli::PrezzoTraghetto && !Prezzo::Leggi(testo)) {
            Rifiuta(campo,
                    u"«%1» non è un prezzo: scrivi gli euro, per esempio 45,50 (fino a 99.999,99)."_s.arg(testo));
        } else if (campo >= vincoli::Nota && campo <= vincoli::Prenotazione &&
                   testo.size() > Width(Table::Vincoli, campo)) {
            Rifiuta(campo,
                    u"Il testo è troppo lungo: i caratteri sono al massimo %1."_s.arg(Width(Table::Vincoli, campo)));
        }
    }

    // Two digits alone may be hours as well as minutes: 20 hours are no small mistake for 20 minutes.
    bool OreOMinuti(int campo) {
        const QString& testo = Testo(campo);
        const int numero = testo.size() <= 2 && std::all_of(testo.begin(), testo.end(), &Cifra) ? testo.toInt() : 0;
        if (numero == 0) return false;
        Rifiuta(campo, u"«%1» sono ore o minuti? Scrivi %2 oppure %3."_s.arg(testo, TestoMinuti(numero * 60),
                                                                             TestoMinuti(numero)));
        return true;
    }

    void FormaOra(int campo) {
        QString& testo = Testo(campo);
        if (campo == vincoli::Imbarco && OreOMinuti(campo)) return;
        const std::optional<int> minuti = LeggiMinutiDigitati(testo);
        const bool chiusura = campo == vincoli::VisiteA && minuti == kMinutiDelGiorno;
        if (!minuti || (*minuti >= kMinutiDelGiorno && !chiusura)) return Rifiuta(campo, NonOra(testo));
        testo = TestoMinutiMemorizzati(*minuti);
    }

    void FormaNavigazione(QString& testo) {
        if (OreOMinuti(vincoli::Navigazione)) return;
        const qsizetype giorni = testo.count(u':') == 2 ? testo.indexOf(u':') : -1;
        const std::optional<int> primi = giorni > 0 ? LeggiMinutiDigitati(testo.first(giorni)) : std::optional(0);
        const std::optional<int> minuti = LeggiMinutiDigitati(testo.sliced(giorni + 1));
        const int totale = primi && minuti ? *primi * 24 + *minuti : 0;
        if (totale < 1 || totale > TraghettoAOrario::kMassimaNavigazione) {
            return Rifiuta(vincoli::Navigazione,
                           u"La navigazione va da 1 minuto a 9 giorni: scrivi per esempio 8:30, o 1:08:30 con i "
                           "giorni."_s);
        }
        testo = cronovia::Testo(Durata{totale / kMinutiDelGiorno, totale / 60 % 24, totale % 60});
    }

    // Fields that only make sense together.
    void Insieme() {
        const auto qualcosa = [this](std::initializer_list<int> campi) {
            return std::any_of(campi.begin(), campi.end(), [this](int campo) { return !Manca(campo); });
        };
        const bool traghetto =
            qualcosa({vincoli::TraghettoOra, vincoli::TraghettoData, vincoli::Navigazione, vincoli::Imbarco});
        if (traghetto && Manca(vincoli::TraghettoOra)) {
            Rifiuta(vincoli::TraghettoOra, u"Indica a che ora parte il traghetto."_s);
        }
        if (traghetto && Manca(vincoli::Navigazione)) {
            Rifiuta(vincoli::Navigazione, u"Indica quanto dura la navigazione."_s);
        }
        for (const int ora : {vincoli::NonPrimaOra, vincoli::NonDopoOra}) {
            if (Manca(ora) && !Manca(ora + 1)) Rifiuta(ora, u"Indica anche l'ora, oltre alla data."_s);
        }
        if (Manca(vincoli::VisiteDa) != Manca(vincoli::VisiteA)) {
            Rifiuta(Manca(vincoli::VisiteDa) ? vincoli::VisiteDa : vincoli::VisiteA,
                    u"Indica sia quando aprono le visite sia quando chiudono."_s);
        }
        if (!difetto_) Ordine();
    }

    void Ordine() {
        const Vincoli letti = LeggiVincoli(testi_).vincoli.Valore();
        if (!Manca(vincoli::NonDopoOra) && !letti.arrivo) {
            Rifiuta(vincoli::NonDopoOra, u"L'ora entro cui arrivare viene prima di quella da cui si può arrivare."_s);
        }
        if (!Manca(vincoli::VisiteA) && !letti.visite) {
            Rifiuta(vincoli::VisiteA, u"Le visite chiudono prima di aprire."_s);
        }
    }

    std::vector<QString> testi_;
    std::optional<DifettoVincoli> difetto_;
};

}  // namespace

VincoliDigitati LeggiDigitati(std::vector<QString> testi) { return LettoreDigitati(std::move(testi)).Leggi(); }

std::vector<QString> TestiDaDigitare(const VincoliTappa& vincoli) {
    std::vector<QString> testi = ValoriDeiVincoli(vincoli.Valore());
    const auto testo = [&](int campo) -> QString& { return testi[static_cast<std::size_t>(campo)]; };
    for (const int ora : kOre) {
        if (const auto minuti = LeggiMinuti(testo(ora))) testo(ora) = TestoMinuti(*minuti);
    }
    for (const int data : kDate) {
        if (const auto giorno = LeggiDataScritta(testo(data))) testo(data) = TestoData(*giorno);
    }
    QString& navigazione = testo(vincoli::Navigazione);
    if (navigazione.startsWith("00:"_L1)) navigazione.remove(0, 3);
    return testi;
}

}  // namespace cronovia
