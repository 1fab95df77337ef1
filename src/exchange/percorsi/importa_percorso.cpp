// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/percorsi/importa_percorso.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <iterator>
#include <utility>

#include "calendar/testo.h"
#include "exchange/percorsi/lettore_percorso.h"
#include "files/righe_testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMinimoByte = 151;
constexpr int kRigheIntestazione = 16;
constexpr Durata kSostaTraghetto{0, 2, 0};

// Goes to the header, which is among the first lines or nowhere.
std::unique_ptr<LettorePercorso> Riconosci(RigheTesto& righe, const DestinazioneTappe& destinazione) {
    for (int riga = 0; riga < kRigheIntestazione && righe.Avanza(); ++riga) {
        const CampiPercorso colonne = SeparaCampi(righe.Testo());
        if (auto lettore = LettoreIstruzioni(colonne, destinazione)) return lettore;
        if (auto lettore = LettoreLocalita(colonne, destinazione)) return lettore;
    }
    return nullptr;
}

QString TestoStrade(std::vector<StradaLetta> strade, bool traghetto) {
    const std::size_t massimo = traghetto ? 1 : 2;
    while (strade.size() > massimo) {
        strade.erase(std::min_element(strade.begin(), strade.end(),
                                      [](const StradaLetta& a, const StradaLetta& b) { return a.km < b.km; }));
    }
    QStringList nomi(traghetto ? 1 : 0, u"TRAGH"_s);
    for (const StradaLetta& strada : strade) nomi += strada.nome;
    return nomi.join(u' ');
}

// The stage as the itinerary holds it: at most two roads, or one and the ferry's mark, those travelled longest.
Tappa TappaDellItinerario(TappaLetta letta) {
    Tappa tappa;
    tappa.localita = letta.localita;
    tappa.numStrada = TestoStrade(std::move(letta.strade), letta.traghetto);
    tappa.km = letta.km;
    tappa.tipo = tappa.numStrada.startsWith(u'A') ? TipoStrada::Autostrada : TipoStrada::Principale;
    if (tappa.Traghetto()) tappa.sosta = kSostaTraghetto;
    return tappa;
}

}  // namespace

std::optional<RigheItinerario> LeggiPercorso(const QString& path, Progress& progress) {
    const StatoFile prima = StatoDelFile(path);
    const auto file = ApriInLettura(path);
    auto tappe = LeggiPercorso(*file, path, progress);
    const QString nome = QDir::toNativeSeparators(path);
    if (StatoDelFile(path) != prima) throw Failure(u"Il file %1 è cambiato mentre veniva letto."_s.arg(nome));
    if (tappe && tappe->empty()) throw Failure(u"Nel percorso del file %1 non c'è nessuna tappa."_s.arg(nome));
    return tappe;
}

std::optional<RigheItinerario> LeggiPercorso(QIODevice& device, const QString& path, Progress& progress) {
    if (device.size() < kMinimoByte) return std::nullopt;
    RigheItinerario tappe;
    const auto destinazione = [&](const TappaLetta& letta) {
        if (std::ssize(tappe) == kMassimoTappe) {
            throw Failure(u"Il percorso del file %1 ha più di %2 tappe: un itinerario non può contenerle."_s.arg(
                QDir::toNativeSeparators(path), Raggruppa(kMassimoTappe)));
        }
        tappe.push_back(TappaDellItinerario(letta));
    };
    RigheTesto righe(device);
    const auto lettore = Riconosci(righe, destinazione);
    if (!lettore) return std::nullopt;
    progress.Title(u"Lettura del percorso"_s);
    const auto lunghezza = static_cast<double>(device.size());
    while (righe.Avanza()) {
        progress.Advance(static_cast<double>(device.pos()), lunghezza);
        lettore->Leggi(SeparaCampi(righe.Testo()));
    }
    return tappe;
}

QString RiassuntoPercorso(std::span<const Tappa> tappe) {
    std::int64_t km = 0;
    std::int64_t traghetti = 0;
    for (const Tappa& tappa : tappe) {
        km += tappa.km;
        if (tappa.Traghetto()) ++traghetti;
    }
    return u"Tappe riconosciute: %1, da %2 a %3.\nChilometri: %4; traghetti: %5."_s.arg(
        Raggruppa(std::ssize(tappe)), tappe.front().localita, tappe.back().localita, Raggruppa(km),
        Raggruppa(traghetti));
}

}  // namespace cronovia
