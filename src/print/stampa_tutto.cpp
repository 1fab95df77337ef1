// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_tutto.h"

#include <QDir>
#include <iterator>

#include "interaction/failure.h"
#include "print/stampa_cronovia.h"
#include "print/stampa_giornate.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

Stampato StampaLeScelte(const DatiStampa& dati, const PieDiPagina& piede, PagineScelte scelte, Progress& progress) {
    if (!scelte.giornate) return StampaCronovia(dati, piede, progress);
    Stampato documento = StampaGiornate(dati, piede, progress);
    if (!scelte.cronovia) return documento;
    Stampato cronovia = StampaCronovia(dati, piede, progress);
    for (Segnalibro& segnalibro : cronovia.segnalibri) segnalibro.pagina += documento.pagine.size();
    cronovia.segnalibri.insert(cronovia.segnalibri.begin(), {u"Giornate"_s, 0, 0});
    cronovia.pagine.insert(cronovia.pagine.begin(), std::make_move_iterator(documento.pagine.begin()),
                           std::make_move_iterator(documento.pagine.end()));
    return cronovia;
}

void StampaTutto(const RichiestaStampa& richiesta, Interaction& interaction, Progress& progress) {
    const auto prova = [&](bool voluta, const auto& azione) {
        if (!voluta) return false;
        try {
            azione();
            return true;
        } catch (const Failure& failure) {
            progress.Advance(0, 0);
            interaction.Show({failure.Message(), {}, Icon::Exclamation});
            return false;
        }
    };
    const bool file = prova(true, [&] { ScriviTabella(richiesta.dati, richiesta.cartella); });
    const PagineScelte scelte = richiesta.pagine;
    const bool pagine = prova(scelte.cronovia || scelte.giornate, [&] {
        richiesta.stampa(StampaLeScelte(richiesta.dati, richiesta.piede, scelte, progress));
    });
    const bool moduli = prova(richiesta.moduli, richiesta.avviaModuli);
    QStringList parti;
    if (pagine && scelte.giornate) parti += u"Giornate"_s;
    if (pagine && scelte.cronovia) parti += u"Cronovia"_s;
    QString stampati = parti.isEmpty() ? QString() : parti.join(u" e "_s) + u' ';
    if (pagine && moduli) stampati += u" e \r\n"_s;
    if (moduli) stampati += u"Moduli per Diario di Bordo"_s;
    if (!stampati.isEmpty()) interaction.Show({u"Stampa "_s + stampati + u" completata..."_s, {}, Icon::None});
    if (!file) return;
    const QString path = QDir::toNativeSeparators(FileTabella(richiesta.cartella));
    interaction.Show({u"Stampa sul file "_s + path + u": completata!"_s, {}, Icon::None});
}

}  // namespace cronovia
