// SPDX-License-Identifier: GPL-3.0-or-later
// Where the stages of the example journeys lie, against positions that were written down by hand.
#include <gtest/gtest.h>

#include <QFile>
#include <algorithm>
#include <map>

#include "app/sessione.h"
#include "exchange/iei/importa_mete.h"
#include "itinerary/itinerari.h"
#include "itinerary/posizioni.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr double kStessoLuogoKm = 15;

std::map<QString, Posizione> Riferimenti() {
    std::map<QString, Posizione> riferimenti;
    const QByteArray file = prova::LeggiFile(QStringLiteral(CRONOVIA_TEST_DATA "/luoghi/riferimenti.txt"));
    for (const QString& riga : QString::fromUtf8(file).split(u'\n', Qt::SkipEmptyParts)) {
        if (riga.startsWith(u'#')) continue;
        const QString gradi = riga.section(u' ', -2);
        riferimenti[riga.section(u' ', 0, -3)] = LeggiPosizione(gradi).value();
    }
    return riferimenti;
}

TEST(Luoghi, OfTheExamplesAreFoundWhereTheyLie) {
    const std::map<QString, Posizione> riferimenti = Riferimenti();
    Gazzettino gazzettino(QStringLiteral(CRONOVIA_PLACES "/luoghi.dat"));
    std::map<QString, bool> trovati;  // and whether they are the right ones
    for (const auto& [esempio, codice] :
         {std::pair(u"capo-nord"_s, u"1"_s), {u"sicilia"_s, u"2"_s}, {u"provenza"_s, u"3"_s}}) {
        const prova::CartellaDiProva cartella;
        Sessione sessione(cartella.Path());
        Progress muto;
        ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/") + esempio + u".iei"_s, {}}, muto);
        const MetaAperta aperta = sessione.ApriMeta(codice);
        const auto posizioni = PosizioniDelViaggio(PosizioniConfermate(sessione.Archivio()), gazzettino, aperta.tappe,
                                                   aperta.meta.nazione);
        ASSERT_EQ(posizioni.size(), aperta.tappe.size());
        for (std::size_t i = 0; i < posizioni.size(); ++i) {
            const QString& localita = aperta.tappe[i].localita;
            const double errore =
                posizioni[i].posizione ? DistanzaKm(*posizioni[i].posizione, riferimenti.at(localita)) : -1;
            if (posizioni[i].fonte != FontePosizione::Repertorio) continue;
            const bool giusto = errore < kStessoLuogoKm;
            EXPECT_TRUE(giusto || errore < 100) << localita.toStdString() << " is off by " << errore;
            trovati[localita] = giusto && trovati.try_emplace(localita, true).first->second;
        }
    }
    const auto sbagliati = std::count_if(trovati.begin(), trovati.end(), [](const auto& t) { return !t.second; });
    RecordProperty("found", static_cast<int>(trovati.size()));
    RecordProperty("wrong", static_cast<int>(sbagliati));
    EXPECT_GE(trovati.size() * 100, riferimenti.size() * 78);
    EXPECT_LE(sbagliati * 100, std::ssize(trovati));
}

}  // namespace
}  // namespace cronovia
