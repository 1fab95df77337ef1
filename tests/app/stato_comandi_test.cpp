#include "app/comandi.h"

#include <set>

#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using Fase = schermata::Viaggio::Fase;

// Names of the controls, without "cmd".
QString Abilitati(const StatoComandi& stato) {
    QStringList nomi;
    for (const DescrizioneComando& d : Descrizioni()) {
        if (stato.Abilitato(d.comando)) nomi += QString::fromUtf16(d.nome).mid(3);
    }
    return nomi.join(u' ');
}

const QString kPrincipali =
    u"Nuovo Ricerca Salva CancMeta Calcola Stampa Itinerario GuidaCitta CancItin Esce Import Export"_s;
const QString kInserimento = u"Inserisce Aggiunge Cerca Fine Memorizza Duplica AzzeraSoste Trasferisce"_s;

TEST(StatoComandi, WhatEachScreenEnables) {
    struct Caso {
        Schermata (*schermata)();
        Fatti fatti;
        QString abilitati;
    };
    const auto nuova = [] { return Schermata(schermata::Viaggio{Fase::Nuova}); };
    const auto inserimento = [] { return Schermata(schermata::Inserimento{}); };
    const auto inserita = [] { return Schermata(schermata::Inserimento{{}, {}, 2, true}); };
    const auto aperta = [] { return Schermata(schermata::Viaggio{Fase::Aperta}); };
    const std::vector<Caso> casi = {
        {[] { return Schermata(schermata::Viaggio{Fase::Vuota}); }, {}, u"Nuovo Esce Import"_s},
        {[] {
             return Schermata(schermata::Viaggio{Fase::Vuota, true});
         },
         {},
         u"Nuovo Esce Import Converte"_s},
        {nuova, {}, u"Nuovo Salva Esce"_s},
        {nuova, {0, true}, u"Nuovo Ricerca Salva Esce"_s},
        {aperta, {5, true}, kPrincipali},
        {aperta, {5, true, Attivita::Scrittura}, u""_s},
        {aperta, {5, true, Attivita::Corsa}, u"Esce"_s},
        {[] { return Schermata(schermata::Viaggio{Fase::Lasciata}); }, {}, kPrincipali},
        {[] { return Schermata(schermata::ElencoMete{}); }, {5, true}, u"Nuovo Esce"_s},
        {inserimento, {0, true}, kInserimento + u" AltriPacchetti"_s},
        {inserimento, {1, true}, kInserimento + u" AltriPacchetti"_s},
        {inserita, {1, true}, kInserimento},
        {inserita,
         {2, true},
         u"Inserisce Aggiunge Cancella Ricalcola Ritorno Cerca Fine Memorizza Duplica AzzeraSoste Trasferisce"_s},
        {inserimento, {5, true, Attivita::Scrittura}, u""_s},
        {[] {
             return Schermata(schermata::Inserimento{{}, {}, 1, false, true});
         },
         {5, true},
         u"Fine"_s},
        {[] { return Schermata(schermata::Cronovia{}); }, {5, true}, u"Calcola Stampa"_s},
        {[] { return Schermata(schermata::Cronovia{}); }, {5, true, Attivita::Corsa}, u"Esce"_s},
        {[] { return Schermata(schermata::Stampa{}); }, {5, true}, u"Calcola Stampa"_s},
        {[] {
             return Schermata(schermata::Stampa{{}, true});
         },
         {5, true},
         u""_s},
        {[] { return Schermata(schermata::Guida{}); }, {5, true}, u""_s},
        {[] {
             return Schermata(schermata::Scambio{{ModoScambio::Export, {}, {}}});
         },
         {},
         u""_s},
    };
    for (const Caso& caso : casi) {
        const StatoComandi stato = StatoDeiComandi(caso.fatti, caso.schermata());
        QString atteso = caso.abilitati;
        EXPECT_EQ(Abilitati(stato), atteso.replace(u"AltriPacchetti"_s, u"MapPoint"_s)) << &caso - casi.data();
    }
}

// On one screen no two commands answer to the same letter.
TEST(StatoComandi, CommandsOfAScreenDifferInNameAndLetter) {
    std::set<QString> nomi;
    std::set<std::pair<bool, QChar>> lettere;
    for (const DescrizioneComando& d : Descrizioni()) {
        EXPECT_TRUE(nomi.insert(QString::fromUtf16(d.nome)).second);
        EXPECT_FALSE(QString::fromUtf16(d.istruzione).isEmpty());
        const QString scritta = QString::fromUtf16(d.scritta);
        if (!scritta.contains(u'&')) continue;
        const QChar lettera = scritta[scritta.indexOf(u'&') + 1].toUpper();
        EXPECT_TRUE(lettere.insert({d.comando >= Comando::Inserisce, lettera}).second) << scritta.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
