// SPDX-License-Identifier: GPL-3.0-or-later
// What can be pressed while something runs, and on a screen that no session stops at; the sessions at the window see
// the others.
#include "app/comandi.h"

#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using Fase = schermata::Viaggio::Fase;

// Names of the controls, without "cmd".
QString Abilitati(const Fatti& fatti, const Schermata& schermata) {
    const StatoComandi stato = StatoDeiComandi(fatti, schermata);
    QStringList nomi;
    for (const DescrizioneComando& d : TabellaComandi()) {
        if (stato.Abilitato(d.comando)) nomi += QString::fromUtf16(d.nome).mid(3);
    }
    return nomi.join(u' ');
}

TEST(StatoComandi, ARunLeavesStopAloneAndWritingNothing) {
    EXPECT_EQ(Abilitati({5, true}, schermata::Stampa{{}, schermata::PassoStampa::InCorso}), u""_s);
    for (const Fase fase : {Fase::Vuota, Fase::Nuova, Fase::Aperta}) {
        EXPECT_EQ(Abilitati({5, true, Attivita::Scrittura}, schermata::Viaggio{fase}), u""_s);
        EXPECT_EQ(Abilitati({5, true, Attivita::Corsa}, schermata::Viaggio{fase}), u"Esce"_s);
    }
    EXPECT_EQ(Abilitati({5, true, Attivita::Corsa}, schermata::Cronovia{}), u"Esce"_s);
    EXPECT_EQ(Abilitati({5, true, Attivita::Scrittura}, schermata::Inserimento{}), u""_s);
}

}  // namespace
}  // namespace cronovia
