// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/soste/colonne_soste.h"

#include "interaction/failure.h"
#include "places/nomi.h"
#include "places/posizione.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The names that columns go by, folded; the first one is how the person calls it.
const QStringList& NomiDi(std::size_t colonna) {
    static const std::array<QStringList, kColonneSosta> nomi = {{
        {u"nome"_s, u"name"_s, u"titolo"_s, u"title"_s, u"denominazione"_s},
        {u"latitudine"_s, u"lat"_s, u"latitude"_s, u"y"_s},
        {u"longitudine"_s, u"lon"_s, u"lng"_s, u"long"_s, u"longitude"_s, u"x"_s},
        {u"tipo"_s, u"type"_s, u"tipologia"_s, u"categoria"_s, u"category"_s},
        {u"descrizione"_s, u"description"_s, u"desc"_s},
        {u"note"_s, u"nota"_s, u"notes"_s, u"commento"_s, u"comment"_s},
    }};
    return nomi[colonna];
}

PostoColonne Nessuna() {
    PostoColonne posto{};
    posto.fill(-1);
    return posto;
}

std::optional<ColonnaSosta> ColonnaDetta(const QString& nome) {
    const QString piegato = NomePiegato(nome);
    for (std::size_t i = 0; i < kColonneSosta; ++i) {
        if (NomiDi(i).contains(piegato)) return static_cast<ColonnaSosta>(i);
    }
    return std::nullopt;
}

bool InEuropa(const Posizione& posizione) {
    return posizione.latitudine > 27 && posizione.latitudine < 72 && posizione.longitudine > -32 &&
           posizione.longitudine < 60;
}

int PostoDi(const QString& scritto, const QStringList& intestazione) {
    bool numero = false;
    const int posto = scritto.toInt(&numero) - 1;
    if (numero && posto >= 0 && posto < intestazione.size()) return posto;
    for (qsizetype i = 0; i < intestazione.size(); ++i) {
        if (NomePiegato(intestazione[i]) == NomePiegato(scritto)) return static_cast<int>(i);
    }
    throw Failure(
        u"La colonna «%1» non c'è nel file. La sua prima riga è: %2."_s.arg(scritto, intestazione.join(u"; ")));
}

}  // namespace

QString NomeColonna(ColonnaSosta colonna) { return NomiDi(colonna).front(); }

PostoColonne ColonneDette(const QStringList& intestazione) {
    PostoColonne posto = Nessuna();
    for (int i = 0; i < intestazione.size(); ++i) {
        const auto colonna = ColonnaDetta(intestazione[i]);
        if (colonna && posto[*colonna] < 0) posto[*colonna] = i;
    }
    // What the only text says is the name.
    if (posto[kNome] < 0) std::swap(posto[kNome], posto[kDescrizione]);
    return posto;
}

PostoColonne ColonneIndovinate(const QStringList& celle) {
    PostoColonne posto = Nessuna();
    for (int i = 0; i + 1 < celle.size() && posto[kLatitudine] < 0; ++i) {
        const auto diritta = LeggiPosizione(celle[i], celle[i + 1]);
        const auto rovescia = LeggiPosizione(celle[i + 1], celle[i]);
        if (diritta && InEuropa(*diritta)) {
            posto[kLatitudine] = i;
            posto[kLongitudine] = i + 1;
        } else if (rovescia && InEuropa(*rovescia)) {
            posto[kLatitudine] = i + 1;
            posto[kLongitudine] = i;
        }
    }
    for (int i = 0; i < celle.size() && posto[kNome] < 0; ++i) {
        bool numero = false;
        QString(celle[i]).replace(u',', u'.').toDouble(&numero);
        if (!numero && !celle[i].isEmpty() && i != posto[kLatitudine] && i != posto[kLongitudine]) posto[kNome] = i;
    }
    return posto;
}

bool Bastano(const PostoColonne& colonne) {
    return colonne[kNome] >= 0 && colonne[kLatitudine] >= 0 && colonne[kLongitudine] >= 0;
}

PostoColonne LeggiColonne(const QString& scritte, const QStringList& intestazione) {
    PostoColonne posto = Nessuna();
    for (const QString& coppia : scritte.split(u',')) {
        const auto colonna = ColonnaDetta(coppia.section(u'=', 0, 0).trimmed());
        if (!colonna || !coppia.contains(u'=')) {
            throw Failure(
                u"Le colonne si scrivono come nome=…,latitudine=…,longitudine=… e, se ci sono, tipo, descrizione e "
                u"note; "
                "«%1» non va."_s.arg(coppia.trimmed()));
        }
        posto[*colonna] = PostoDi(coppia.section(u'=', 1).trimmed(), intestazione);
    }
    if (!Bastano(posto)) throw Failure(u"Ci vogliono le colonne nome, latitudine e longitudine."_s);
    return posto;
}

}  // namespace cronovia
