// SPDX-License-Identifier: GPL-3.0-or-later
// tappe.
#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "cli/simile.h"
#include "cli/verbi.h"
#include "exchange/tappe/lettore_tappe.h"
#include "files/lettore_righe.h"
#include "interaction/failure.h"
#include "itinerary/celle_tappa.h"
#include "itinerary/itinerari.h"
#include "itinerary/spostamenti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The stages that a change comes to, from those that are stored.
using CambiaTappe = std::function<RigheItinerario(const RigheItinerario&)>;

QString DatoSconosciuto(const QString& nome) {
    QStringList noti;
    for (int i = 0; i < kCelle; ++i) noti += NomiDellaCella(i);
    const std::optional<QString> simile = PiuSimile(nome, noti);
    return u"«%1» non è un dato di una tappa%2."_s.arg(nome, simile ? u": forse «%1»"_s.arg(*simile) : QString());
}

CelleTappa CelleDaiDati(const QStringList& argomenti) {
    CelleTappa celle;
    for (const DatoNominato& dato : DatiNominati(argomenti, 1)) {
        const std::optional<int> cella = CellaDiNome(dato.nome);
        if (!cella) throw WrongUsage(DatoSconosciuto(dato.nome));
        if (celle.contains(*cella)) throw WrongUsage(u"«%1» è detto due volte."_s.arg(dato.nome));
        celle[*cella] = dato.valore;
    }
    if (celle.isEmpty()) throw WrongUsage(u"Mancano i dati della tappa, come tappa=ASTI km=56."_s);
    return celle;
}

Tratto LeggiTratto(const QString& testo) {
    static const QRegularExpression forma(u"^(\\d{1,5})(?:-(\\d{1,5}))?$"_s);
    const auto parti = forma.match(testo);
    const int da = parti.captured(1).toInt();
    const int a = parti.captured(2).isEmpty() ? da : parti.captured(2).toInt();
    if (!parti.hasMatch() || da < 1 || a < da) {
        throw WrongUsage(u"«%1» non è il numero di una tappa, o di più tappe come 3-5."_s.arg(testo));
    }
    return {da, a};
}

void RifiutaSeManca(const RigheItinerario& righe, int riga) {
    const auto numero = static_cast<int>(righe.size());
    if (riga > numero) throw Failure(u"La tappa %1 non c'è: l'itinerario ne ha %2."_s.arg(riga).arg(numero));
}

// As the entry of stages would take it.
Tappa TappaDalleCelle(const CelleTappa& celle, bool partenza) {
    try {
        Tappa tappa = LeggiTappa(celle, Scritte::DaAltri, partenza);
        RifiutaSenzaTratta(tappa, partenza);
        return tappa;
    } catch (const CellaRifiutata& rifiutata) {
        throw Failure(u"«%1»: %2."_s.arg(NomiDellaCella(rifiutata.cella).last(), rifiutata.perche));
    }
}

CambiaTappe Aggiunta(const CelleTappa& celle, std::optional<int> prima) {
    return [=](const RigheItinerario& righe) {
        if (prima) RifiutaSeManca(righe, *prima);
        const int dove = prima.value_or(static_cast<int>(righe.size()) + 1);
        return InserisciRighe(righe, dove, {TappaDalleCelle(celle, dove == 1)}, std::nullopt).righe;
    };
}

CambiaTappe Cambiata(const CelleTappa& celle, Tratto tratto) {
    if (tratto.da != tratto.a) throw WrongUsage(u"Con --cambia si cambia una tappa sola."_s);
    return [=](RigheItinerario righe) {
        RifiutaSeManca(righe, tratto.da);
        Tappa& tappa = righe[static_cast<std::size_t>(tratto.da - 1)];
        CelleTappa nuove = CelleDellaTappa(tappa);
        if (celle.contains(cella::Sosta)) nuove.remove(cella::FineGiorno);  // its "*" tells
        if (celle.contains(cella::Km)) nuove.remove(cella::KmStimati);      // typed, even if they are the same
        nuove.insert(celle);
        tappa = TappaDalleCelle(nuove, tratto.da == 1);
        return righe;
    };
}

CambiaTappe Tolta(Tratto tratto) {
    return [=](const RigheItinerario& righe) {
        RifiutaSeManca(righe, tratto.a);
        return TogliRighe(righe, tratto).righe;
    };
}

CambiaTappe Spostata(Tratto tratto, std::optional<int> prima) {
    return [=](const RigheItinerario& righe) {
        RifiutaSeManca(righe, std::max(tratto.a, prima.value_or(0)));
        return SpostaRighe(righe, tratto, prima.value_or(static_cast<int>(righe.size()) + 1)).righe;
    };
}

TappeLette LeggiFileTappe(const QString& path) {
    if (path != u'-') return LeggiTabellaTappe(*ApriInLettura(path));
    QFile ingresso;
    if (!ingresso.open(stdin, QIODevice::ReadOnly)) throw Failure(u"Lo standard input non si può leggere."_s);
    return LeggiTabellaTappe(ingresso);
}

// What a line asks for; all that can be told without the archive is refused here.
CambiaTappe LeggiCambiamento(const Richiesta& richiesta, QStringList& ignorate) {
    const auto valore = [&](const QString& nome) { return richiesta.opzioni.value(nome); };
    const bool aggiungi = richiesta.opzioni.contains(u"aggiungi"_s);
    const bool cambia = richiesta.opzioni.contains(u"cambia"_s);
    const bool togli = richiesta.opzioni.contains(u"togli"_s);
    const bool sposta = richiesta.opzioni.contains(u"sposta"_s);
    const std::optional<int> prima = richiesta.Intero(u"prima"_s, 1, 9999);
    if (aggiungi + cambia + togli + sposta > 1) {
        throw WrongUsage(u"Si può dire una sola tra --aggiungi, --cambia, --togli e --sposta."_s);
    }
    if (prima && !aggiungi && !sposta) throw WrongUsage(u"L'opzione --prima vale solo con --aggiungi e --sposta."_s);
    if (aggiungi) return Aggiunta(CelleDaiDati(richiesta.argomenti), prima);
    if (cambia) return Cambiata(CelleDaiDati(richiesta.argomenti), LeggiTratto(valore(u"cambia"_s)));
    const qsizetype attesi = togli || sposta ? 1 : 2;
    if (richiesta.argomenti.size() > attesi) {
        throw WrongUsage(u"Il verbo «tappe» qui non vuole l'argomento «%1»."_s.arg(richiesta.argomenti.at(attesi)));
    }
    if (togli) return Tolta(LeggiTratto(valore(u"togli"_s)));
    if (sposta) return Spostata(LeggiTratto(valore(u"sposta"_s)), prima);
    TappeLette lette = LeggiFileTappe(richiesta.argomenti.at(1));
    ignorate = lette.ignorate;
    return [tappe = std::move(lette.tappe)](const RigheItinerario&) { return tappe; };
}

}  // namespace

void EseguiTappe(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    if (richiesta.argomenti.size() == 1 && richiesta.opzioni.isEmpty())
        return EseguiItinerario(apri, richiesta, uscita);
    QStringList ignorate;
    const CambiaTappe cambia = LeggiCambiamento(richiesta, ignorate);
    Sessione sessione = apri();
    Transaction transaction(sessione.Archivio());
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    const RigheItinerario righe = cambia(aperta.tappe);
    MemorizzaTappeItinerario(sessione.Archivio(), aperta.meta.codice, righe, aperta.orario, *richiesta.avanzamento);
    transaction.Commit();
    uscita << u"Tappe di %1: %2.\n"_s.arg(aperta.meta.localita, QString::number(righe.size()));
    const auto daIndicare = std::count_if(righe.begin(), righe.end(), [](const Tappa& t) { return t.kmDaIndicare; });
    if (daIndicare > 0) {
        uscita
            << u"Chilometri da indicare: %1, il primo alla tappa %2.\n"_s.arg(daIndicare).arg(*PrimaDaIndicare(righe));
    }
    if (!ignorate.isEmpty()) uscita << u"Non letti, perché nessuna tappa li ha: %1.\n"_s.arg(ignorate.join(u", "_s));
}

}  // namespace cronovia
