// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/file_viaggio.h"

#include <QDateTime>
#include <QDir>
#include <algorithm>
#include <array>
#include <vector>

#include "app/cartella_dati.h"
#include "exchange/calendario/scrittore_ics.h"
#include "exchange/pagina/pagina_telefono.h"
#include "files/file_intero.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

std::vector<PosizioneTappa> PosizioniDi(const ViaggioDaScrivere& viaggio, std::span<const Tappa> tappe) {
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    return PosizioniDelViaggio(viaggio.confermate, gazzettino, tappe, viaggio.meta.nazione);
}

// Without the file of coasts the maps show the way alone.
FileScritto ScriviPagina(const ViaggioDaScrivere& viaggio) {
    const std::vector<PosizioneTappa> posizioni = PosizioniDi(viaggio, viaggio.tappe);
    const Coste coste = LeggiCoste(FileDelProgramma(u"coste.dat"_s));
    return {PaginaTelefono({viaggio.meta, viaggio.cronovia, viaggio.tappe, posizioni, coste})};
}

// The rows of the schedule tell of stages without the free rows between them.
std::vector<PosizioneTappa> PosizioniDellaTabella(const ViaggioDaScrivere& viaggio) {
    std::vector<Tappa> tappe;
    tappe.reserve(viaggio.cronovia.tabella.righe.size());
    for (const RigaCalcolo& riga : viaggio.cronovia.tabella.righe) tappe.push_back(riga.tappa);
    return PosizioniDi(viaggio, tappe);
}

FileScritto ScriviCalendario(const ViaggioDaScrivere& viaggio) {
    const std::vector<Evento> eventi = EventiDelViaggio(viaggio.cronovia, *viaggio.meta.dataInizio,
                                                        PosizioniDellaTabella(viaggio), viaggio.giorniInteri);
    if (eventi.empty()) throw Failure(u"Niente da mettere nel calendario: l'itinerario non ha ancora tappe."_s);
    return {CalendarioIcs(viaggio.meta.localita, eventi, QDateTime::currentDateTime()),
            u"Eventi: %1. Importato di nuovo dopo un altro calcolo, aggiorna quelli di prima."_s.arg(eventi.size())};
}

constexpr std::array kFormati = {
    FormatoViaggio{u"html", u"Pagina per il telefono",
                   u"Scrive le giornate di una mèta come pagina per il telefono, che si legge senza rete.",
                   &ScriviPagina},
    FormatoViaggio{u"ics", u"Calendario",
                   u"Scrive guida, soste, traghetti, notti e orari fissati di una mèta come calendario.",
                   &ScriviCalendario},
};

}  // namespace

std::span<const FormatoViaggio> FormatiViaggio() { return kFormati; }

const FormatoViaggio& FormatoDi(QStringView opzione) {
    return *std::find_if(kFormati.begin(), kFormati.end(),
                         [&](const FormatoViaggio& formato) { return formato.opzione == opzione; });
}

QString NomeFileViaggio(const FormatoViaggio& formato, const Meta& meta) {
    return u"%1.%2"_s.arg(NomeDiFile(meta.localita, u"Viaggio"), formato.opzione);
}

QString ScriviFileViaggio(const ViaggioDaScrivere& viaggio, const FormatoViaggio& formato, const QString& path,
                          bool sovrascrivi) {
    viaggio.sessione.RifiutaSeDanneggiato();
    RifiutaFileEsistente(path, sovrascrivi);
    RifiutaFileArchivio(path, viaggio.sessione.Archivio().Path());
    const FileScritto scritto = formato.scrivi(viaggio);
    FileIntero file(path);
    file.Scrivi(scritto.contenuto);
    file.Chiudi();
    const QString dove = u"%1: è sul file %2."_s.arg(formato.nome, QDir::toNativeSeparators(path));
    return scritto.avviso.isEmpty() ? dove : dove + u'\n' + scritto.avviso;
}

}  // namespace cronovia
