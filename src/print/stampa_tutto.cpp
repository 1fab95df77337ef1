#include "print/stampa_tutto.h"

#include <QDir>

#include "interaction/failure.h"
#include "print/stampa_cronovia.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

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
    const bool tabella =
        prova(richiesta.tabella, [&] { richiesta.stampa(StampaCronovia(richiesta.dati, richiesta.piede, progress)); });
    const bool moduli = prova(richiesta.moduli, richiesta.avviaModuli);
    QString stampati = tabella ? u"Cronovia "_s : QString();
    if (tabella && moduli) stampati += u" e \r\n"_s;
    if (moduli) stampati += u"Moduli per Diario di Bordo"_s;
    if (!stampati.isEmpty()) interaction.Show({u"Stampa "_s + stampati + u" completata..."_s, {}, Icon::None});
    if (!file) return;
    const QString path = QDir::toNativeSeparators(FileTabella(richiesta.cartella));
    interaction.Show({u"Stampa sul file "_s + path + u": completata!"_s, {}, Icon::None});
}

}  // namespace cronovia
