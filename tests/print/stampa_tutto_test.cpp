// SPDX-License-Identifier: GPL-3.0-or-later
// The print run: table file, printer, logbook program, and what the person hears of them.
#include "print/stampa_tutto.h"

#include <gtest/gtest.h>

#include "print/moduli.h"
#include "print/tabella_testo.h"
#include "stampa.h"
#include "support/copione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class StampaTuttoTest : public testing::Test {
  protected:
    StampaTuttoTest() {
        cartella_.Crea();
        dati_.righe.push_back(prova::Riga(u" > Čaj\tbar “Łódź” "_s, u"00:45"_s, u"Ristorante"_s));
        dati_.righe.push_back({});
    }
    void Esegui(bool tabella, bool moduli) {
        Progress progress;
        StampaTutto({dati_,
                     prova::kPiede,
                     cartella_.Path(),
                     {tabella, false},
                     moduli,
                     [this](const Stampato& documento) {
                         pagine_ = static_cast<int>(documento.pagine.size());
                         if (guasto_) throw Failure(u"La stampante tace."_s);
                     },
                     [this] { AvviaModuli(dati_, {cartella_.Path()}); }},
                    copione_, progress);
        EXPECT_TRUE(copione_.Finito());
    }
    [[nodiscard]] QString Completata() const {
        return u"Stampa sul file %1/Vandtabl.txt: completata!"_s.arg(cartella_.Path());
    }
    void MettiFogliax(const QByteArray& testo) const {
        const QString path = cartella_.Path() + u"/Fogliax"_s;
        prova::ScriviFile(path, testo);
        ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    prova::CartellaDiProva cartella_;
    DatiStampa dati_ = prova::Viaggio(1);
    prova::Copione copione_;
    int pagine_ = 0;
    bool guasto_ = false;
};

TEST_F(StampaTuttoTest, WritesTheTableByteForByteWhateverIsTicked) {
    copione_.Messaggio(Completata());
    Esegui(false, false);
    EXPECT_EQ(pagine_, 0);
    const QByteArray testa =
        "ROMA\r\n\r\n"
        "Num.\tLocalita\tN.Str\tKm.\tTs\tPr/Km\tTempo\tSosta\tG.Sett\tData\tOra\tMotivo/Note\tLimite per ritorno\r\n";
    EXPECT_EQ(prova::LeggiFile(FileTabella(cartella_.Path())), testa + "1\tTappa n1x\t\t\t\t\t\t\t\t\t\t\t\t\r\n" +
                                                                   "\t> Caj bar \x93L\xF3"
                                                                   "dz\x94\t\t\t\t\t\t00:45\t\t\t\t\tRistorante\t\r\n");
    dati_.righe.clear();
    copione_.Messaggio(u"Stampa Cronovia  completata..."_s).Messaggio(Completata());
    Esegui(true, false);
    EXPECT_EQ(prova::LeggiFile(FileTabella(cartella_.Path())), testa);
    EXPECT_EQ(pagine_, 0);
}

TEST_F(StampaTuttoTest, TellsWhatWasPrintedAndOneFaultDoesNotDisturbTheRest) {
    copione_
        .Messaggio(
            u"I moduli per il diario di bordo non si possono stampare: nella cartella %1 manca il programma "
            "Fogliax.exe."_s.arg(cartella_.Path()))
        .Messaggio(u"Stampa Cronovia  completata..."_s)
        .Messaggio(Completata());
    Esegui(true, true);
    EXPECT_EQ(pagine_, 1);
    MettiFogliax(
        "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" >\"$(dirname \"$0\")/prima\"\n"
        "mv \"$(dirname \"$0\")/prima\" \"$(dirname \"$0\")/avviato\"\n");
    dati_.meta.localita = u"ROMA; rm -rf \"$HOME\""_s;
    copione_.Messaggio(u"Stampa Cronovia  e \r\nModuli per Diario di Bordo completata..."_s).Messaggio(Completata());
    Esegui(true, true);
    const QString avviato = cartella_.Path() + u"/avviato"_s;
    for (int i = 0; i < 500 && !QFile::exists(avviato); ++i) usleep(10'000);
    EXPECT_EQ(prova::LeggiFile(avviato), "1|ROMA; rm -rf \"$HOME\",01/01/2000,05/01/2000");

    MettiFogliax("niente che si possa avviare");
    guasto_ = true;
    copione_.Messaggio(u"La stampante tace."_s)
        .Messaggio(u"Il programma dei moduli per il diario di bordo non si avvia: …"_s)
        .Messaggio(Completata());
    Esegui(true, true);
    guasto_ = false;
    ASSERT_TRUE(QFile::remove(FileTabella(cartella_.Path())));
    ASSERT_TRUE(QDir(cartella_.Path()).mkdir(u"Vandtabl.txt"_s));
    copione_.Messaggio(FileTabella(cartella_.Path()) + u" è una cartella, non un file."_s)
        .Messaggio(u"Stampa Cronovia  completata..."_s);
    Esegui(true, false);
}

}  // namespace
}  // namespace cronovia
