// SPDX-License-Identifier: GPL-3.0-or-later
#include "interaction/interaction.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Nome(Operazione operazione) {
    switch (operazione) {
        case Operazione::InserimentoMeta:
            return u"Inserimento meta"_s;
        case Operazione::ModificaMeta:
            return u"Modifica dati mèta"_s;
        case Operazione::AnnullamentoMeta:
            return u"Annullamento meta"_s;
        case Operazione::AnnullamentoItinerario:
            return u"Annullamento itinerario"_s;
        case Operazione::InserimentoTratto:
            return u"Inserimento tappe percorso"_s;
        case Operazione::Export:
            return u"Export delle mète selezionate"_s;
        case Operazione::Import:
            break;
    }
    return u"Import delle mète selezionate nei propri archivi"_s;
}

}  // namespace

bool BoxConferma(Interaction& interaction, Operazione operazione, const QString& perso) {
    const QString nome = Nome(operazione);
    const QString domanda = u"Confermi "_s + nome.toLower() + u'?';
    if (perso.isEmpty()) return interaction.Ask({domanda, nome}) == Answer::Yes;
    return interaction.Ask({domanda + u"\n\n"_s + perso, nome, false, Answer::No}) == Answer::Yes;
}

}  // namespace cronovia
