// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/vincoli.h"

#include <algorithm>
#include <cmath>

#include "calendar/digitati.h"
#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimoPrezzo = 99'999'99;

Centesimi MinutiInOre(int minuti) { return InCentesimi({0, 0, minuti}, kGiornoOrologio); }

// A row on its way into values; counts what has a text and is none.
class LettoreVincoli {
  private:
    [[nodiscard]] QString Valore(int campo) const { return valori_[static_cast<std::size_t>(campo)].trimmed(); }
    [[nodiscard]] int Minuti(int campo) const { return LeggiMinuti(Valore(campo)).value_or(-1); }

    // Fields that only make sense together.
    template <typename Leggi>
    auto Gruppo(int primo, int ultimo, Leggi&& leggi) {
        bool qualcosa = false;
        for (int campo = primo; campo <= ultimo; ++campo) qualcosa = qualcosa || !Valore(campo).isEmpty();
        auto letto = qualcosa ? leggi() : decltype(leggi())();
        if (qualcosa && !letto) ++rifiutati_;
        return letto;
    }

  public:
    explicit LettoreVincoli(std::span<const QString> valori) : valori_(valori) {}

    VincoliLetti Leggi() {
        Vincoli v;
        v.traghetto = Gruppo(vincoli::TraghettoOra, vincoli::Imbarco, [this] { return Traghetto(); });
        v.arrivo = Gruppo(vincoli::NonPrimaOra, vincoli::NonDopoData, [this] { return Arrivo(); });
        v.visite = Gruppo(vincoli::VisiteDa, vincoli::VisiteA,
                          [this] { return OreDiVisita::Da(Minuti(vincoli::VisiteDa), Minuti(vincoli::VisiteA)); });
        LeggiAppunto(v.nota);
        LeggiAppunto(v.telefono);
        LeggiAppunto(v.link);
        LeggiAppunto(v.prenotazione);
        v.prezzoTraghetto = LeggiPrezzo(vincoli::PrezzoTraghetto);
        v.prezzoNotte = LeggiPrezzo(vincoli::PrezzoNotte);
        v.prezzoIngresso = LeggiPrezzo(vincoli::PrezzoIngresso);
        return {VincoliTappa(std::move(v)), rifiutati_};
    }

  private:
    // An hour with a day behind it that can be read, if there is one.
    [[nodiscard]] std::optional<OraFissa> Ora(int campo) const {
        const QString data = Valore(campo + 1);
        const std::optional<NumeroGiorno> giorno = LeggiDataScritta(data);
        if (!data.isEmpty() && !giorno) return std::nullopt;
        return OraFissa::Da(Minuti(campo), giorno);
    }

    std::optional<TraghettoAOrario> Traghetto() {
        const std::optional<OraFissa> partenza = Ora(vincoli::TraghettoOra);
        const QString durata = Valore(vincoli::Navigazione);
        const QString imbarco = Valore(vincoli::Imbarco);
        if (!partenza || !DurataLeggibile(durata)) return std::nullopt;
        const Durata navigazione = LeggiDurata(durata);
        if (navigazione.giorni > TraghettoAOrario::kMassimaNavigazione / kMinutiDelGiorno) return std::nullopt;
        return TraghettoAOrario::Da(*partenza, (navigazione.giorni * 24 + navigazione.ore) * 60 + navigazione.minuti,
                                    imbarco.isEmpty() ? 0 : Minuti(vincoli::Imbarco));
    }

    std::optional<OreDiArrivo> Arrivo() {
        const auto manca = [this](int campo) { return Valore(campo).isEmpty() && Valore(campo + 1).isEmpty(); };
        const auto prima = Ora(vincoli::NonPrimaOra);
        const auto dopo = Ora(vincoli::NonDopoOra);
        if ((!prima && !manca(vincoli::NonPrimaOra)) || (!dopo && !manca(vincoli::NonDopoOra))) return std::nullopt;
        return OreDiArrivo::Da(prima, dopo);
    }

    template <vincoli::Field kCampo>
    void LeggiAppunto(Appunto<kCampo>& appunto) {
        const std::optional<Appunto<kCampo>> letto = Appunto<kCampo>::Da(Valore(kCampo));
        if (!letto) ++rifiutati_;
        appunto = letto.value_or(Appunto<kCampo>());
    }

    std::optional<Prezzo> LeggiPrezzo(int campo) {
        return Gruppo(campo, campo, [&] { return Prezzo::Leggi(Valore(campo)); });
    }

    std::span<const QString> valori_;
    int rifiutati_ = 0;
};

void ScriviOra(const std::optional<OraFissa>& ora, int campo, std::vector<QString>& valori) {
    if (!ora) return;
    valori[static_cast<std::size_t>(campo)] = TestoMinutiMemorizzati(ora->Minuti());
    if (ora->Data()) valori[static_cast<std::size_t>(campo) + 1] = DataMemorizzata(*ora->Data());
}

// "delle 15:00", "di lun 28/06/2027 15:00".
QString Di(const OraFissa& ora) { return (ora.Data() ? u"di "_s : u"delle "_s) + Testo(ora); }

// "le 15:00", "lun 28/06/2027 15:00".
QString Le(const OraFissa& ora) { return (ora.Data() ? QString() : u"le "_s) + Testo(ora); }

}  // namespace

std::optional<TraghettoAOrario> TraghettoAOrario::Da(const OraFissa& partenza, int minutiNavigazione,
                                                     int minutiImbarco) {
    const bool navigazione = minutiNavigazione > 0 && minutiNavigazione <= kMassimaNavigazione;
    if (!navigazione || minutiImbarco < 0 || minutiImbarco >= kMinutiDelGiorno) return std::nullopt;
    return TraghettoAOrario(partenza, minutiNavigazione, minutiImbarco);
}

Centesimi TraghettoAOrario::Navigazione() const { return MinutiInOre(navigazione_); }
Centesimi TraghettoAOrario::Imbarco() const { return MinutiInOre(imbarco_); }
TraghettoAOrario TraghettoAOrario::SenzaData() const { return {partenza_.SenzaData(), navigazione_, imbarco_}; }

std::optional<OreDiArrivo> OreDiArrivo::Da(std::optional<OraFissa> nonPrima, std::optional<OraFissa> nonDopo) {
    if (!nonPrima && !nonDopo) return std::nullopt;
    if (nonPrima && nonDopo) {
        const bool date = nonPrima->Data() && nonDopo->Data();
        const int giorni = date ? *nonDopo->Data() - *nonPrima->Data() : 0;
        if (giorni < 0 || (giorni == 0 && nonDopo->Minuti() < nonPrima->Minuti())) return std::nullopt;
    }
    return OreDiArrivo(nonPrima, nonDopo);
}

std::optional<OreDiVisita> OreDiVisita::Da(int apre, int chiude) {
    if (apre < 0 || chiude <= apre || chiude > kMinutiDelGiorno) return std::nullopt;
    return OreDiVisita(apre, chiude);
}

Centesimi OreDiVisita::Apre() const { return MinutiInOre(apre_); }
Centesimi OreDiVisita::Chiude() const { return MinutiInOre(chiude_); }

template <vincoli::Field kCampo>
std::optional<Appunto<kCampo>> Appunto<kCampo>::Da(const QString& testo) {
    Appunto appunto;
    appunto.testo_ = testo.trimmed();
    const bool lungo = appunto.testo_.size() > Width(Table::Vincoli, kCampo);
    if (lungo || HaCaratteriDiControllo(appunto.testo_)) return std::nullopt;
    return appunto;
}
template class Appunto<vincoli::Nota>;
template class Appunto<vincoli::Telefono>;
template class Appunto<vincoli::Link>;
template class Appunto<vincoli::Prenotazione>;

std::optional<Prezzo> Prezzo::Da(int centesimiDiEuro) {
    if (centesimiDiEuro < 0 || centesimiDiEuro > kMassimoPrezzo) return std::nullopt;
    return Prezzo(centesimiDiEuro);
}

std::optional<Prezzo> Prezzo::Leggi(const QString& testo) {
    const std::optional<int> centesimi = LeggiEuro(testo, 2);
    return centesimi ? Da(*centesimi) : std::nullopt;
}

QString Prezzo::Testo() const { return QString::number(centesimi_ / 100) + u',' + Zero(centesimi_ % 100, 2); }

VincoliTappa::VincoliTappa(Vincoli vincoli) {
    if (vincoli != Vincoli()) vincoli_ = std::make_shared<const Vincoli>(std::move(vincoli));
}

// Hours in order on two days may be none on one.
VincoliTappa SenzaDate(const VincoliTappa& vincoli) {
    Vincoli v = vincoli.Valore();
    if (v.traghetto) v.traghetto = v.traghetto->SenzaData();
    if (v.arrivo) {
        const auto senza = [](const std::optional<OraFissa>& ora) {
            return ora ? std::optional(ora->SenzaData()) : std::nullopt;
        };
        v.arrivo = OreDiArrivo::Da(senza(v.arrivo->NonPrima()), senza(v.arrivo->NonDopo()));
    }
    return v;
}

std::vector<QString> ValoriDeiVincoli(const Vincoli& v) {
    std::vector<QString> valori(vincoli::kCampi);
    if (v.traghetto) {
        const int navigazione = v.traghetto->MinutiNavigazione();
        ScriviOra(v.traghetto->Partenza(), vincoli::TraghettoOra, valori);
        valori[vincoli::Navigazione] =
            Testo(Durata{navigazione / kMinutiDelGiorno, navigazione / 60 % 24, navigazione % 60});
        valori[vincoli::Imbarco] = TestoMinutiMemorizzati(v.traghetto->MinutiImbarco());
    }
    if (v.arrivo) {
        ScriviOra(v.arrivo->NonPrima(), vincoli::NonPrimaOra, valori);
        ScriviOra(v.arrivo->NonDopo(), vincoli::NonDopoOra, valori);
    }
    if (v.visite) {
        valori[vincoli::VisiteDa] = TestoMinutiMemorizzati(v.visite->MinutiApertura());
        valori[vincoli::VisiteA] = TestoMinutiMemorizzati(v.visite->MinutiChiusura());
    }
    valori[vincoli::Nota] = v.nota.Testo();
    valori[vincoli::Telefono] = v.telefono.Testo();
    valori[vincoli::Link] = v.link.Testo();
    valori[vincoli::Prenotazione] = v.prenotazione.Testo();
    if (v.prezzoTraghetto) valori[vincoli::PrezzoTraghetto] = v.prezzoTraghetto->Testo();
    if (v.prezzoNotte) valori[vincoli::PrezzoNotte] = v.prezzoNotte->Testo();
    if (v.prezzoIngresso) valori[vincoli::PrezzoIngresso] = v.prezzoIngresso->Testo();
    return valori;
}

VincoliLetti LeggiVincoli(std::span<const QString> valori) { return LettoreVincoli(valori).Leggi(); }

QStringList TestiVincoli(const VincoliTappa& vincoli) {
    const Vincoli v = vincoli.Valore();
    QStringList testi;
    if (v.traghetto) {
        testi += u"traghetto "_s + Di(v.traghetto->Partenza()) + u", navigazione "_s +
                 TestoMinuti(v.traghetto->MinutiNavigazione());
        if (v.traghetto->MinutiImbarco() > 0) {
            testi.back() += u", imbarco "_s + TestoMinuti(v.traghetto->MinutiImbarco()) + u" prima"_s;
        }
    }
    if (v.arrivo && v.arrivo->NonPrima()) testi += u"arrivo non prima "_s + Di(*v.arrivo->NonPrima());
    if (v.arrivo && v.arrivo->NonDopo()) testi += u"arrivo non dopo "_s + Le(*v.arrivo->NonDopo());
    if (v.visite) {
        testi += u"visite dalle %1 alle %2"_s.arg(TestoMinuti(v.visite->MinutiApertura()),
                                                  TestoMinuti(v.visite->MinutiChiusura()));
    }
    const auto aggiungi = [&](const QString& nome, const QString& testo) {
        if (!testo.isEmpty()) testi += nome + u": "_s + testo;
    };
    const auto prezzo = [&](const QString& nome, const std::optional<Prezzo>& euro) {
        if (euro) testi += nome + u' ' + TestoEuro(euro->CentesimiDiEuro());
    };
    aggiungi(u"prenotazione"_s, v.prenotazione.Testo());
    aggiungi(u"telefono"_s, v.telefono.Testo());
    aggiungi(u"link"_s, v.link.Testo());
    prezzo(u"traghetto"_s, v.prezzoTraghetto);
    prezzo(u"notte"_s, v.prezzoNotte);
    prezzo(u"ingresso"_s, v.prezzoIngresso);
    aggiungi(u"nota"_s, v.nota.Testo());
    return testi;
}

}  // namespace cronovia
