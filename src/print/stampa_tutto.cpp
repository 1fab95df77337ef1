// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_tutto.h"

#include <QDir>
#include <iterator>
#include <optional>
#include <utility>

#include "interaction/failure.h"
#include "print/stampa_cronovia.h"
#include "print/stampa_giornate.h"
#include "print/stampa_mappe.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Puts a part before a document, whose title stays; its own bookmarks give way to one.
void Premetti(Stampato parte, const QString& segnalibro, Stampato& documento) {
    for (Segnalibro& altro : documento.segnalibri) altro.pagina += parte.pagine.size();
    for (NumeroPagina& numero : documento.numeri) numero.pagina += parte.pagine.size();
    documento.numeri.insert(documento.numeri.begin(), parte.numeri.begin(), parte.numeri.end());
    documento.segnalibri.insert(documento.segnalibri.begin(), {segnalibro, 0, 0});
    documento.pagine.insert(documento.pagine.begin(), std::make_move_iterator(parte.pagine.begin()),
                            std::make_move_iterator(parte.pagine.end()));
}

// Puts one behind it.
void Aggiungi(Stampato parte, Stampato& documento) {
    for (Segnalibro& altro : parte.segnalibri) {
        altro.pagina += documento.pagine.size();
        documento.segnalibri.push_back(std::move(altro));
    }
    for (NumeroPagina& numero : parte.numeri) {
        numero.pagina += documento.pagine.size();
        documento.numeri.push_back(std::move(numero));
    }
    documento.pagine.insert(documento.pagine.end(), std::make_move_iterator(parte.pagine.begin()),
                            std::make_move_iterator(parte.pagine.end()));
}

}  // namespace

Stampato StampaLeScelte(const DatiStampa& dati, const PieDiPagina& piede, PagineScelte scelte, Progress& progress) {
    std::optional<Stampato> mappe;
    if (dati.mappa) mappe = StampaMappe(dati, scelte.giornate, piede, progress);
    Stampato documento =
        scelte.cronovia ? StampaCronovia(dati, piede, progress) : StampaGiornate(dati, piede, progress);
    if (mappe && scelte.cronovia) Premetti(std::move(*mappe), u"Mappa"_s, documento);
    if (mappe && !scelte.cronovia) Aggiungi(std::move(*mappe), documento);
    if (scelte.cronovia && scelte.giornate) Premetti(StampaGiornate(dati, piede, progress), u"Giornate"_s, documento);
    if (dati.mappa) NumeraPagine(documento);
    return documento;
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
