// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/file_viaggio.h"

#include <QDir>
#include <algorithm>
#include <array>

#include "app/cartella_dati.h"
#include "exchange/pagina/pagina_telefono.h"
#include "files/file_intero.h"
#include "itinerary/posizioni.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Without the file of coasts the maps show the way alone.
FileScritto ScriviPagina(const ViaggioDaScrivere& viaggio) {
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const std::vector<PosizioneTappa> posizioni =
        PosizioniDelViaggio(viaggio.sessione.Archivio(), gazzettino, viaggio.tappe, viaggio.meta.nazione);
    const Coste coste = LeggiCoste(FileDelProgramma(u"coste.dat"_s));
    return {PaginaTelefono({viaggio.meta, viaggio.cronovia, viaggio.tappe, posizioni, coste})};
}

constexpr std::array kFormati = {
    FormatoViaggio{u"html", u"Pagina per il telefono",
                   u"Scrive le giornate di una mèta come pagina per il telefono, che si legge senza rete.",
                   &ScriviPagina},
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
