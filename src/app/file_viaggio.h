// SPDX-License-Identifier: GPL-3.0-or-later
// The files that a journey with its schedule is written to for others to read: a table of their kinds.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <span>

#include "app/sessione.h"

namespace cronovia {

/// A journey as others get it.
struct ViaggioDaScrivere {
    const Sessione& sessione;
    const Meta& meta;
    const Cronovia& cronovia;
    std::span<const Tappa> tappe;           ///< from which it was computed
    const PosizioniConfermate& confermate;  ///< of the archive
    bool giorniInteri = false;              ///< in a calendar, each day has an event of its own too
};

/// What was written, and what is to be said of it.
struct FileScritto {
    QByteArray contenuto;  ///< of the whole file
    QString avviso = {};   ///< a sentence on what was left out; empty when nothing was
};

/// A kind of file.
struct FormatoViaggio {
    QStringView opzione;                              ///< of `esporta`, and the ending of the file's name: "html"
    QStringView nome;                                 ///< "Pagina per il telefono"
    QStringView descrizione;                          ///< of the option
    FileScritto (*scrivi)(const ViaggioDaScrivere&);  ///< may throw a `Failure`
};

/// All kinds, in the order of the help.
std::span<const FormatoViaggio> FormatiViaggio();
/// The kind of an option, which must be one of them.
const FormatoViaggio& FormatoDi(QStringView opzione);

/// The name that a file of a trip is offered: "CAPO NORD.html".
QString NomeFileViaggio(const FormatoViaggio& formato, const Meta& meta);

/// Writes the file, whole or not at all, and tells in a sentence or two where it is. A `Failure` when the archive is
/// damaged, the path belongs to it, a file is there that may not be replaced, or there is nothing to write.
QString ScriviFileViaggio(const ViaggioDaScrivere& viaggio, const FormatoViaggio& formato, const QString& path,
                          bool sovrascrivi);

}  // namespace cronovia
