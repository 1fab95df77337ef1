// SPDX-License-Identifier: GPL-3.0-or-later
#include "guide/annotazioni.h"

#include <gtest/gtest.h>

#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class AnnotazioniTest : public prova::ConArchivio {
  protected:
    void Aggiungi(const QString& localita, const QString& codice, const QString& descrizione, const QString& tempo) {
        prova::NellaGuida(archive_, localita, codice, descrizione, tempo, u"1"_s);
    }
    /// The whole guide, in the order in which its entries were added.
    QString Guida() { return prova::Righe(archive_, Table::GuidaCitta, guida::kCampi).join(u'\n'); }
    /// The entry with that place in the list of a locality.
    VoceGuida Voce(const QString& localita, std::size_t indice = 0) {
        return LettoreGuida(archive_).Voci(localita)->at(indice);
    }
    ModificaGuida Salva(const QString& localita, const std::optional<VoceGuida>& mostrata, const CampiVoce& campi) {
        return SalvaVoce(archive_, localita, mostrata, tipi_, campi);
    }

    std::vector<TipoGuida> tipi_ = CaricaTipiGuida(archive_);
};

TEST_F(AnnotazioniTest, WhatCannotBecomeAnEntry) {
    const std::vector<std::pair<CampiVoce, QString>> casi = {
        {{u"  "_s, u"Boh"_s, 0, 0}, u"Errore! Manca la descrizione!!!"_s},
        {{u"Duomo"_s, u"Boh"_s, 0, 0}, u"Errore! Manca la tipologia!!!"_s},
        {{u"Duomo"_s, u" "_s, 1, 0}, u"Errore! Manca la tipologia!!!"_s},
        {{u"Duomo"_s, u" vedibile "_s, 0, 0}, u"Errore! Manca il tempo stimato!!!"_s},
        {{QString(97, u'x'), u"Gpl"_s, 0, 0}, u"La descrizione è troppo lunga: al massimo 96 caratteri."_s},
    };
    for (const auto& [campi, errore] : casi) {
        EXPECT_EQ(prova::MessaggioDi([&, c = campi] { Salva(u"PISA"_s, {}, c); }), errore);
    }
    EXPECT_EQ(prova::MessaggioDi([&] {
                  Salva(QString(31, u'X'), {}, {u"Bar"_s, u"Gpl"_s, 0, 0});
              }),
              u"Il nome della località è troppo lungo: al massimo 30 caratteri."_s);
    EXPECT_EQ(Guida(), u""_s);
    Salva(u"PISA"_s, {}, {u" Bar \"l'Arno\" "_s, u"Punto Sosta"_s, 0, 0});
    EXPECT_EQ(Guida(), u"PISA|05|Bar \"l'Arno\"|00:00|0"_s);
}

TEST_F(AnnotazioniTest, TheEntryThatARowShowsIsTheOneThatChanges) {
    Aggiungi(u"SANT'ANNA [LU] #1"_s, u"01"_s, u"Bar 'Da Piero'"_s, u"01:00"_s);
    Aggiungi(u"Sant'Anna [LU] #1"_s, u"01"_s, u"Bar \"Da Piero\""_s, u"01:00"_s);
    Aggiungi(u"SANT'ANNA [LU] #1"_s, u"01"_s, u"Bar \"Da Piero\""_s, u"01:00"_s);  // as the second one
    Aggiungi(u"SANT'ANNA [LU] #1"_s, u"77"_s, u"*"_s, u""_s);                      // of a type that is gone
    Aggiungi(u"Sant'Anna [LU] #1"_s, u"01"_s, u"Bar \"Da Piero\""_s, u"02:00"_s);  // but for the time
    const QString localita = u"SANT'ANNA [LU] #1"_s;
    CancellaVoce(archive_, NamePattern::ForName(localita), Voce(localita, 2));
    Salva(localita, Voce(localita, 1), {u"Torre"_s, u"Da vedere"_s, 0, 45});
    CancellaVoce(archive_, NamePattern::ForName(localita), Voce(localita, 3));
    EXPECT_EQ(Guida(),
              u"SANT'ANNA [LU] #1|01|Bar 'Da Piero'|01:00|1\n"
              "SANT'ANNA [LU] #1|02|Torre|00:45|0\n"
              "SANT'ANNA [LU] #1|01|Bar \"Da Piero\"|01:00|1"_s);
}

TEST_F(AnnotazioniTest, AnEqualEntryOfANameThatOnlyResemblesStays) {
    Aggiungi(u"SANT ELMO"_s, u"09"_s, u"Pompa"_s, u"00:00"_s);
    Aggiungi(u"SANT'ELMO"_s, u"09"_s, u"Pompa"_s, u"00:00"_s);
    const VoceGuida mostrata = Voce(u"SANT'ELMO"_s, 1);
    ASSERT_EQ(mostrata.localita, u"SANT'ELMO"_s);
    CancellaVoce(archive_, NamePattern::ForName(u"SANT'ELMO"_s), mostrata);
    EXPECT_TRUE(Guida().startsWith(u"SANT ELMO|09|Pompa"_s)) << Guida().toStdString();
}

TEST_F(AnnotazioniTest, AnEntryThatIsThereNoMoreTakesNoOtherWithIt) {
    Aggiungi(u"ROMA"_s, u"01"_s, u"Foro *"_s, u"01:00"_s);
    Aggiungi(u"ROMA"_s, u"01"_s, u"Foro Romano"_s, u"01:00"_s);
    const VoceGuida mostrata = Voce(u"ROMA"_s);
    ASSERT_EQ(mostrata.descrizione, u"Foro *"_s);
    CancellaVoce(archive_, NamePattern::ForName(u"ROMA"_s), mostrata);
    EXPECT_FALSE(CancellaVoce(archive_, NamePattern::ForName(u"ROMA"_s), mostrata).has_value());
    const ModificaGuida modifica = Salva(u"ROMA"_s, mostrata, {u"Foro di Traiano"_s, u"Ottimo"_s, 1, 0});
    EXPECT_FALSE(modifica.prima.has_value());
    EXPECT_EQ(Guida(), u"ROMA|01|Foro Romano|01:00|1\nROMA|01|Foro di Traiano|01:00|0"_s);
}

TEST_F(AnnotazioniTest, ChangesAreTakenBackAndDoneAgain) {
    Aggiungi(u"ROMA"_s, u"01"_s, u"Colosseo"_s, u"02:00"_s);
    std::vector<ModificaGuida> passi;
    std::vector<QString> stati = {Guida()};
    const auto ricorda = [&](const ModificaGuida& modifica) {
        passi.push_back(modifica);
        stati.push_back(Guida());
    };
    ricorda(Salva(u"ROMA"_s, {}, {u"Pantheon"_s, u"Ottimo"_s, 1, 0}));
    ricorda(Salva(u"ROMA"_s, Voce(u"ROMA"_s, 1), {u"Pantheon e piazza"_s, u"Vedibile"_s, 1, 30}));
    ricorda(*CancellaVoce(archive_, NamePattern::ForName(u"ROMA"_s), Voce(u"ROMA"_s, 1)));
    for (std::size_t i = passi.size(); i > 0; --i) {
        passi[i - 1] = Annulla(archive_, passi[i - 1]).value();
        EXPECT_EQ(Guida(), stati[i - 1]);
    }
    for (std::size_t i = 0; i < passi.size(); ++i) {
        passi[i] = Annulla(archive_, passi[i]).value();
        EXPECT_EQ(Guida(), stati[i + 1]);
    }
    EXPECT_FALSE(Annulla(archive_, passi[0]).has_value());  // others have changed what it left
    EXPECT_EQ(Guida(), stati.back());
}

TEST_F(AnnotazioniTest, ManyLocalitiesAreFoundAsEachAloneIs) {
    const std::vector<QString> nomi = {u"SANT'ANNA"_s, u"*O"_s,     u"Città"_s, u"[A-C]X"_s,
                                       u"C?TTÀ #1"_s,  u"KELVIN"_s, u""_s};
    for (const QString& nome : nomi) {
        for (const QString& detta : {nome, nome.toUpper(), nome.toLower(), nome + u'O'}) {
            Aggiungi(detta, u"08"_s, u"èremo"_s, u"00:00"_s);
            Aggiungi(detta, u"01"_s, u"Z"_s, u"00:20"_s);
            Aggiungi(detta, u"08"_s, u"Fiera"_s, u"00:00"_s);
        }
    }
    for (const auto& nome : {u"SANT ANNA"_s, u"BX"_s, u"CITTÀ 51"_s, u"\u212AELVIN"_s})
        Aggiungi(nome, u"02"_s, nome, u"00:10"_s);
    const std::vector<VociGuida> insieme = VociDelleLocalita(archive_, nomi);
    LettoreGuida guida(archive_);
    const auto testo = [](const VociGuida& voci) {
        QStringList testi;
        for (const VoceGuida& voce : voci) testi += QString::number(voce.id);
        return testi.join(u' ');
    };
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        EXPECT_EQ(testo(insieme[i]), testo(*guida.Voci(nomi[i]))) << nomi[i].toStdString();
        EXPECT_GE(insieme[i].size(), 6U) << nomi[i].toStdString();
    }
}

}  // namespace
}  // namespace cronovia
