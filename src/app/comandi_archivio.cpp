// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_archivio.h"

#include "app/copie.h"
#include "app/niente_perso.h"
#include "app/riparazione.h"
#include "store/archive_check.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

// The archive is another one now: nothing of before can be taken back, and the trip is read anew.
void Riparti(Postazione& p) {
    p.sessione.Riapri();
    p.documento.Modifiche().Dimentica(Ambito::Archivio);
    p.scrittiDaAltri = p.sessione.Archivio().PresentMark().others;
    p.VaiAlViaggio();
    p.volti.mostra();
}

}  // namespace

void Ripristina(Postazione& p) {
    if (!NullaInSospeso(p)) return;
    const QString& cartella = p.sessione.Cartella();
    const std::vector<CopiaInElenco> copie = ElencoCopie(cartella);
    if (copie.empty()) {
        return p.Mostra(u"Non c'è ancora nessuna copia: la prima si fa prima di cambiare le mète che ci sono."_s, {},
                        Icon::Information);
    }
    const std::optional<QString> copia = p.volti.scegliCopia(copie);
    if (!copia) return;
    p.Prova([&] {
        const QString cambia = CosaCambierebbe(cartella, *copia);
        if (!p.ChiedeSePerdere(
                u"%1\nL'archivio di adesso resta tra le copie. Ripristino la copia scelta?"_s.arg(cambia),
                u"Ripristina una copia"_s)) {
            return;
        }
        const QString diPrima = RipristinaCopia(cartella, *copia, p.volti.adesso());
        Riparti(p);
        p.Mostra(TestoRipristinata(*copia, diPrima), {}, Icon::Information);
    });
}

void Ripara(Postazione& p) {
    if (!NullaInSospeso(p)) return;
    p.Prova([&] {
        const QString& cartella = p.sessione.Cartella();
        const std::vector<Finding> segnalazioni = CheckArchive(cartella);
        if (!AnyDamage(segnalazioni)) {
            return p.Mostra(TestoInOrdine(segnalazioni), u"Ripara l'archivio"_s, Icon::Information);
        }
        const Repair riparazione = PrepareRepair(cartella);
        if (!p.ChiedeSePerdere(
                u"L'archivio è danneggiato.\n\n%1\nIl file danneggiato resta nella cartella. Metto quello "
                "riparato al suo posto?"_s.arg(TestoRiparazione(riparazione)),
                u"Ripara l'archivio"_s)) {
            return;
        }
        const QString daParte = ApplyRepair(cartella, riparazione, p.volti.adesso());
        Riparti(p);
        p.Mostra(TestoRiparata(daParte), {}, Icon::Information);
    });
}

}  // namespace cronovia::comandi
