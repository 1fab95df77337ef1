// SPDX-License-Identifier: GPL-3.0-or-later
// Stretches of an itinerary that are moved, copied and parted, as the window's commands do it.
#include "app/comandi_righe.h"

#include <gtest/gtest.h>

#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class RigheTest : public prova::PostazioneTest {
  protected:
    RigheTest() {
        postazione_->volti.leggiAppunti = [this] { return appunti_; };
        postazione_->volti.scriviAppunti = [this](const QString& testo) { appunti_ = testo; };
        MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    }
    // Each stage, with "?" where its kilometres are to be told.
    QString Tappe() {
        QStringList nomi;
        for (const Tappa& t : Viaggio().Righe()) nomi += t.localita + (t.kmDaIndicare ? u"?"_s : QString());
        return nomi.join(u' ');
    }
    void Scegli(int da, int a) {
        comandi::SelezionaRiga(*postazione_, da);
        comandi::SceglieFino(*postazione_, a);
    }

    QString appunti_;
};

TEST_F(RigheTest, RowsAreCutCopiedAndPasted) {
    // What others set for a stage goes with it, though no text tells of it.
    Vincoli vincoli;
    vincoli.nota = *Appunto<vincoli::Nota>::Da(u"Ponte 7"_s);
    RigheItinerario righe = Viaggio().Righe();
    righe[1].vincoli = vincoli;
    Viaggio().Modifica(u"nota"_s, righe, 2);
    Scegli(3, 2);
    comandi::Copia(*postazione_);
    comandi::SelezionaRiga(*postazione_, 5);
    comandi::Incolla(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C D B? C"_s);
    EXPECT_EQ(comandi::RigheScelte(*postazione_), (Tratto{5, 6}));
    comandi::Taglia(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C D"_s);
    // The place that they are driven to from is the same again.
    comandi::SelezionaRiga(*postazione_, 5);
    comandi::Incolla(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C D B? C"_s);
    EXPECT_EQ(Viaggio().Righe()[4].vincoli, righe[1].vincoli);
    EXPECT_EQ(postazione_->DaAnnullare(), u"incollatura di 2 tappe"_s);
    // What another program wrote is taken at its word, or not at all.
    appunti_ = u"X\t\t12\nY\t\t13"_s;
    comandi::SelezionaRiga(*postazione_, 2);
    comandi::Incolla(*postazione_);
    EXPECT_EQ(Tappe(), u"A X Y B? C D B? C"_s);
    appunti_ = u"X\t\t12\nY\t\tdodici"_s;
    copione_.Messaggio(u"Non si può incollare: riga 2, i chilometri «dodici» non sono un numero da 0 a 999."_s);
    comandi::Incolla(*postazione_);
    EXPECT_EQ(Tappe(), u"A X Y B? C D B? C"_s);
    for (int i = 0; i < 4; ++i) comandi::Annulla(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C D"_s);
}

TEST_F(RigheTest, KilometresToBeToldAreKeptInTheArchiveAndInWaysBack) {
    comandi::SelezionaRiga(*postazione_, 2);
    comandi::SpostaSu(*postazione_);
    EXPECT_EQ(Tappe(), u"B A? C? D"_s);
    comandi::SpostaSu(*postazione_);
    Scegli(2, 3);
    comandi::DuplicaScelte(*postazione_);
    EXPECT_EQ(Tappe(), u"B A? C? A? C? D"_s);
    comandi::Cancella(*postazione_);  // all that are selected
    Memorizza(Answer::Yes);
    Viaggio().RicaricaTappe();
    EXPECT_EQ(Tappe(), u"B A? C? D"_s);
    comandi::SelezionaRiga(*postazione_, 5);
    Inserisce(u"C"_s, 10);
    comandi::Ritorno(*postazione_);
    EXPECT_EQ(Tappe(), u"B A? C? D C A? B?"_s);
}

TEST_F(RigheTest, ADayEndsWhereThePersonWantsIt) {
    comandi::SelezionaRiga(*postazione_, 2);
    for (const QString& tappa : {u"B"_s, u"C"_s, u"D"_s}) ASSERT_TRUE(Inserisce(tappa, 20));
    comandi::Ricalcola(*postazione_);
    ASSERT_EQ(Viaggio().Giornate().size(), 1U);
    copione_.Messaggio(u"«Fine giornata» a D non ha effetto senza una sosta o un traghetto."_s);
    comandi::FineGiornataCorrente(*postazione_);
    comandi::Annulla(*postazione_);
    Scegli(4, 4);
    comandi::TogliScelte(*postazione_);  // the stages of the day
    EXPECT_EQ(Tappe(), u"A"_s);
    EXPECT_EQ(Schermo(), u"cronovia"_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Viaggio().Calcolata()->fine->giorni, 1);
    comandi::Calcola(*postazione_);
    EXPECT_EQ(Schermo(), u"inserimento"_s);
    // The place on the way has a share of the kilometres; whoever does not want it changes nothing.
    comandi::SelezionaRiga(*postazione_, 4);
    postazione_->volti.chiediDivisione = [](const QString& da, const Tappa& tappa) -> std::optional<Divisione> {
        return tappa.km == 20 ? std::optional(Divisione{u"FRA "_s + da, 7}) : std::nullopt;
    };
    comandi::DividiTappaCorrente(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C FRA C D"_s);
    EXPECT_EQ(Viaggio().Righe()[4].km, 13);
    comandi::SelezionaRiga(*postazione_, 5);
    comandi::DividiTappaCorrente(*postazione_);
    copione_.Messaggio(u"Per dividere una tappa scegli una riga con almeno 2 chilometri."_s);
    comandi::SelezionaRiga(*postazione_, 9);
    comandi::DividiTappaCorrente(*postazione_);
    EXPECT_EQ(Tappe(), u"A B C FRA C D"_s);
}

}  // namespace
}  // namespace cronovia
