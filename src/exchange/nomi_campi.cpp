// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/nomi_campi.h"

#include <array>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString NomeCampo(Table tabella, int campo) {
    static const std::array<QString, itinerari::kCampi> tappa = {
        u"codice"_s,         u"numero"_s, u"località"_s,          u"chilometri"_s, u"strada"_s,
        u"tipo di strada"_s, u"sosta"_s,  u"sosta della guida"_s, u"fine giorno"_s};
    static const std::array<QString, guida::kCampi> voce = {u"località"_s, u"tipo"_s, u"descrizione"_s, u"tempo"_s,
                                                            u"visto"_s};
    if (tabella == Table::MeteVandro) return NomeCampoMeta(static_cast<mete::Field>(campo));
    return tabella == Table::Itinerari ? tappa.at(static_cast<std::size_t>(campo))
                                       : voce.at(static_cast<std::size_t>(campo));
}

}  // namespace

QString NomeCampoMeta(mete::Field campo) {
    static const std::array<QString, mete::kCampi> nomi = {u"codice"_s,
                                                           u"località"_s,
                                                           u"nazione"_s,
                                                           u"data d'inizio"_s,
                                                           u"ora d'inizio"_s,
                                                           u"media Autostrada"_s,
                                                           u"media SuperStrada"_s,
                                                           u"media Principale"_s,
                                                           u"media Locale"_s,
                                                           u"ora di colazione"_s,
                                                           u"ora di pranzo"_s,
                                                           u"durata del pranzo"_s,
                                                           u"ora di cena"_s,
                                                           u"durata della cena"_s,
                                                           u"ora della notte"_s,
                                                           u"minuti di riposo"_s,
                                                           u"ore fra i riposi"_s,
                                                           u"giorni di riposo"_s,
                                                           u"giorni fra i riposi"_s,
                                                           u"inizio visite"_s,
                                                           u"fine visite"_s,
                                                           u"ore dei traghetti"_s,
                                                           u"giorni di adeguamento"_s,
                                                           u"calcolo delle soste"_s};
    return nomi.at(campo);
}

QString CampoAccorciato(Table tabella, int campo) {
    const QString nome = NomeCampo(tabella, campo);
    QString cosa = u"valori di «%1» accorciati"_s.arg(nome);
    if (nome == u"località"_s) cosa = u"località accorciate"_s;
    if (nome == u"nazione"_s) cosa = u"nazioni accorciate"_s;
    if (nome == u"strada"_s) cosa = u"strade accorciate"_s;
    if (nome == u"descrizione"_s) cosa = u"descrizioni accorciate"_s;
    const int larghezza = Width(tabella, campo);
    const QString dove = tabella == Table::MeteVandro  ? u"mète"_s
                         : tabella == Table::Itinerari ? u"tratti stradali"_s
                                                       : u"guida"_s;
    return cosa + (larghezza == 1 ? u" a un carattere"_s : u" a %1 caratteri"_s.arg(larghezza)) + u" (%1)"_s.arg(dove);
}

}  // namespace cronovia
