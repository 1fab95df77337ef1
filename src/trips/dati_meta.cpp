// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/dati_meta.h"

#include <QStringList>
#include <algorithm>

#include "calendar/testo.h"
#include "interaction/failure.h"
#include "trips/limiti_parametri.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFineDelGiorno = kMinutiDelGiorno - 1;

QString NomeCampoMeta(std::size_t campo) { return Definition(Table::MeteVandro).fields[campo].name; }
QString NomeAggiunto(std::size_t campo) { return Definition(Table::Scadenze).fields[campo].name; }

bool UnOrario(std::size_t campo) {
    return campo == mete::OraInizio || std::any_of(kLimitiOrari.begin(), kLimitiOrari.end(), [&](const auto& limiti) {
               return static_cast<std::size_t>(limiti.campo) == campo;
           });
}

QString ValoreMostrato(const std::vector<QString>& valori, std::size_t campo) {
    const QString valore = valori[campo].trimmed();
    if (campo == mete::DataInizio && !valore.isEmpty()) return TestoData(*LeggiDataScritta(valore));
    return UnOrario(campo) ? valore.left(2) + u':' + valore.right(2) : valore;
}

[[noreturn]] void RifiutaDato(const DatoMeta& dato, const QString& perche) {
    throw Failure(u"%1: «%2» non va bene, %3."_s.arg(dato.nome, dato.valore, perche));
}

QString OrarioDelDato(const DatoMeta& dato, const LimitiOrario& limiti) {
    const std::optional<int> minuti = LeggiMinuti(dato.valore);
    const bool quarto = minuti && *minuti % 15 == 0;
    if (!quarto || *minuti / 60 < limiti.primaOra || *minuti / 60 > limiti.ultimaOra) {
        RifiutaDato(dato, u"vuole hh:mm in quarti d'ora, dalle %1:00 alle %2:45"_s.arg(Zero(limiti.primaOra, 2),
                                                                                       Zero(limiti.ultimaOra, 2)));
    }
    return TestoMinutiMemorizzati(*minuti);
}

QString NumeroDelDato(const DatoMeta& dato, int minimo, int massimo, int cifre) {
    bool numero = false;
    const int valore = dato.valore.toInt(&numero);
    if (!numero || valore < minimo || valore > massimo) {
        RifiutaDato(dato, u"vuole un numero da %1 a %2"_s.arg(minimo).arg(massimo));
    }
    return Zero(valore, cifre);
}

QString MinutiDiRiposo(const DatoMeta& dato) {
    QStringList ammessi;
    for (const int minuti : kMinutiDiRiposo) ammessi += QString::number(minuti);
    QString valore = NumeroDelDato(dato, kMinutiDiRiposo.front(), kMinutiDiRiposo.back(), 2);
    if (!ammessi.contains(QString::number(valore.toInt()))) RifiutaDato(dato, u"può essere "_s + ammessi.join(u", "_s));
    return valore;
}

// The stored form of a field that a person typed.
QString ValoreMemorizzato(const DatoMeta& dato, std::size_t campo) {
    for (const LimitiOrario& limiti : kLimitiOrari) {
        if (static_cast<std::size_t>(limiti.campo) == campo) return OrarioDelDato(dato, limiti);
    }
    switch (campo) {
        case mete::Localita:
        case mete::Nazione:
            return Maiuscolo(dato.valore.normalized(QString::NormalizationForm_C));
        case mete::DataInizio: {
            const std::optional<NumeroGiorno> giorno = LeggiDataScritta(dato.valore);
            if (!giorno) RifiutaDato(dato, u"vuole un giorno come 05/06/2027. "_s + MessaggioData().chopped(1));
            return DataMemorizzata(*giorno);
        }
        case mete::OraInizio: {
            const std::optional<int> minuti = LeggiMinuti(dato.valore);
            if (!minuti || *minuti >= kMinutiDelGiorno) RifiutaDato(dato, u"vuole hh:mm"_s);
            return TestoMinutiMemorizzati(*minuti);
        }
        case mete::RiposoMinuti:
            return MinutiDiRiposo(dato);
        case mete::RiposoOre:
            return NumeroDelDato(dato, 0, kMassimeOreTraRiposi, 2);
        case mete::RiposoGiorno:
            return NumeroDelDato(dato, 0, kMassimiGiorniDiRiposo, 2);
        case mete::RiposoDopoGiorni:
            return NumeroDelDato(dato, 0, kMassimiGiorniTraRiposi, 2);
        case mete::GiorniAdeguamento:
            return NumeroDelDato(dato, 0, kMassimoGiorniAdeguamento, 3);
        case mete::CalcoloSoste:
            return NumeroDelDato(dato, static_cast<int>(CalcoloSoste::SosteItinerario),
                                 static_cast<int>(CalcoloSoste::NessunaSosta), 1);
        default:
            return QString::number(NumeroDelDato(dato, kMinimaMedia, kMassimaMedia, 3).toInt());
    }
}

Meta ConRientro(Meta meta, const DatoMeta& dato) {
    const std::optional<Scadenza> prima = meta.scadenza;
    if (dato.valore.isEmpty()) {
        meta.scadenza.reset();
        return meta;
    }
    if (dato.nome.compare(NomeAggiunto(scadenze::RientroData), Qt::CaseInsensitive) == 0) {
        const int minuti = prima ? prima->Ora().Minuti() : kFineDelGiorno;
        meta.scadenza = Scadenza::Leggi(dato.valore, TestoMinutiMemorizzati(minuti));
        if (!meta.scadenza) RifiutaDato(dato, u"vuole una data gg/mm/aaaa"_s);
        return meta;
    }
    if (!prima) RifiutaDato(dato, u"manca il giorno: prima RientroData=gg/mm/aaaa"_s);
    meta.scadenza = Scadenza::Leggi(DataMemorizzata(*prima->Ora().Data()), dato.valore);
    if (!meta.scadenza) RifiutaDato(dato, u"vuole hh:mm"_s);
    return meta;
}

Meta ConPrezzo(Meta meta, std::size_t quale, const DatoMeta& dato) {
    std::array<QString, kPrezziViaggio> testi = TestiDeiPrezzi(meta.prezzi);
    testi.at(quale) = dato.valore;
    const PrezziLetti letti = LeggiPrezzi(testi);
    if (letti.rifiutato) throw Failure(MessaggioPrezzo(quale, dato.valore));
    meta.prezzi = letti.prezzi;
    return meta;
}

}  // namespace

std::vector<DatoMeta> DatiDellaMeta(const Meta& meta) {
    std::vector<DatoMeta> dati;
    const std::vector<QString> valori = ValoriDellaMeta(meta);
    dati.reserve(valori.size() + 1 + kPrezziViaggio);
    for (std::size_t campo = mete::Localita; campo < valori.size(); ++campo) {
        dati.push_back({NomeCampoMeta(campo), ValoreMostrato(valori, campo)});
    }
    const bool scade = meta.scadenza.has_value();
    dati.push_back({NomeAggiunto(scadenze::RientroData), scade ? TestoData(*meta.scadenza->Ora().Data()) : QString()});
    dati.push_back(
        {NomeAggiunto(scadenze::RientroOra), scade ? TestoMinuti(meta.scadenza->Ora().Minuti()) : QString()});
    std::size_t campo = scadenze::KmLitro;
    for (const QString& prezzo : TestiDeiPrezzi(meta.prezzi)) dati.push_back({NomeAggiunto(campo++), prezzo});
    return dati;
}

Meta ConDato(Meta meta, const DatoMeta& dato) {
    const auto detto = [&](const QString& nome) { return nome.compare(dato.nome, Qt::CaseInsensitive) == 0; };
    if (detto(NomeAggiunto(scadenze::RientroData)) || detto(NomeAggiunto(scadenze::RientroOra))) {
        return ConRientro(std::move(meta), dato);
    }
    for (std::size_t i = 0; i < kPrezziViaggio; ++i) {
        if (detto(NomeAggiunto(scadenze::KmLitro + i))) return ConPrezzo(std::move(meta), i, dato);
    }
    for (std::size_t campo = mete::Localita; campo < mete::kCampi; ++campo) {
        if (!detto(NomeCampoMeta(campo))) continue;
        Record record{0, ValoriDellaMeta(meta)};
        record.values[campo] = ValoreMemorizzato({NomeCampoMeta(campo), dato.valore}, campo);
        const Meta letta = MetaDaRecord(record);
        // A name that is too wide is refused when the trip is saved, not cut here.
        if (campo == mete::Localita) meta.localita = record.values[campo];
        if (campo == mete::Nazione) meta.nazione = record.values[campo];
        meta.dataInizio = letta.dataInizio;
        meta.partiInizio = letta.partiInizio;
        meta.oraInizio = letta.oraInizio;
        meta.giorniAdeguamento = letta.giorniAdeguamento;
        meta.parametri = letta.parametri;
        return meta;
    }
    QStringList nomi;
    for (const DatoMeta& altro : DatiDellaMeta(meta)) nomi += altro.nome;
    throw Failure(u"«%1» non è un dato di una mèta. Ci sono: %2."_s.arg(dato.nome, nomi.join(u", "_s)));
}

}  // namespace cronovia
