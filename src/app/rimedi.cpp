// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/rimedi.h"

#include <QFileInfo>

#include "app/riparazione.h"
#include "store/archive.h"
#include "store/archive_check.h"
#include "store/foreign_file.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool ChiedeSePerdere(const RichiestaRimedio& richiesta, const QString& testo, const QString& titolo) {
    return richiesta.interazione.Ask({testo, titolo, false, Answer::No}) == Answer::Yes;
}

// One that is damaged, and no other one's: of a file that is refused nothing is taken.
bool Riparabile(const QString& cartella) {
    try {
        return AnyDamage(CheckArchive(cartella));
    } catch (const Failure&) {
        return false;
    }
}

// What stands there is an archive no more, and there are copies of what it was.
bool Ripristinabile(const QString& cartella, bool riparabile) {
    return (riparabile || IsDestroyed(Archive::FilePath(cartella))) && !CopiesOf(cartella).empty();
}

// What becomes of the file that a copy takes the place of.
QString CosaResta(const QString& cartella) {
    const QString path = Archive::FilePath(cartella);
    if (QFileInfo(path).size() == 0) return {};
    if (IsDestroyed(path) || Riparabile(cartella)) return u"Il file di adesso resta nella cartella, messo da parte. "_s;
    return u"L'archivio di adesso resta tra le copie. "_s;
}

}  // namespace

std::optional<QString> RipristinaChiedendo(const RichiestaRimedio& richiesta) {
    const std::vector<CopiaInElenco> copie = ElencoCopie(richiesta.cartella);
    if (copie.empty()) {
        richiesta.interazione.Show(
            {u"Non c'è ancora nessuna copia: la prima si fa prima di cambiare le mète che ci sono."_s,
             {},
             Icon::Information});
        return std::nullopt;
    }
    const std::optional<QString> copia = richiesta.scegliCopia(copie);
    if (!copia) return std::nullopt;
    const QString testo = u"%1\n%2Ripristino la copia scelta?"_s.arg(CosaCambierebbe(richiesta.cartella, *copia),
                                                                     CosaResta(richiesta.cartella));
    if (!ChiedeSePerdere(richiesta, testo, u"Ripristina una copia"_s)) return std::nullopt;
    return TestoRipristinata(*copia, RipristinaCopia(richiesta.cartella, *copia, richiesta.adesso));
}

std::optional<QString> RiparaChiedendo(const RichiestaRimedio& richiesta) {
    const QString titolo = u"Ripara l'archivio"_s;
    const std::vector<Finding> segnalazioni = CheckArchive(richiesta.cartella);
    if (!AnyDamage(segnalazioni)) {
        richiesta.interazione.Show({TestoInOrdine(segnalazioni), titolo, Icon::Information});
        return std::nullopt;
    }
    const Repair riparazione = PrepareRepair(richiesta.cartella);
    const QString testo =
        u"L'archivio è danneggiato.\n\n%1\nIl file danneggiato resta nella cartella. Metto quello riparato al suo posto?"_s
            .arg(TestoRiparazione(riparazione));
    if (!ChiedeSePerdere(richiesta, testo, titolo)) return std::nullopt;
    return TestoRiparata(ApplyRepair(richiesta.cartella, riparazione, richiesta.adesso));
}

Rimedio OffreRimedio(const RichiestaRimedio& richiesta, const Failure& guasto) {
    const bool ripara = Riparabile(richiesta.cartella);
    const bool ripristina = Ripristinabile(richiesta.cartella, ripara);
    if (!ripara && !ripristina) return Rimedio::Nessuno;
    const bool scelta = ripara && ripristina;
    Question domanda{guasto.Message() + u"\n\nChe cosa vuoi fare?"_s, u"Cronovia"_s, scelta};
    const QString copia = u"Ripristina una &copia…"_s;
    domanda.si = ripara ? u"&Ripara l'archivio…"_s : copia;
    domanda.no = scelta ? copia : u"&Chiudi"_s;
    const Answer risposta = richiesta.interazione.Ask(domanda);
    if (risposta == Answer::Cancel || (!scelta && risposta == Answer::No)) return Rimedio::Rifiutato;
    try {
        const bool conRipara = ripara && risposta == Answer::Yes;
        const auto fatto = conRipara ? RiparaChiedendo(richiesta) : RipristinaChiedendo(richiesta);
        if (!fatto) return OffreRimedio(richiesta, guasto);
        richiesta.interazione.Show({*fatto, {}, Icon::Information});
        return Rimedio::Fatto;
    } catch (const Failure& failure) {
        return OffreRimedio(richiesta, failure);
    }
}

}  // namespace cronovia
