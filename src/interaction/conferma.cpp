#include <array>

#include "interaction/interaction.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Operazione {
    const char16_t* codice;
    const char16_t* nome;
};

constexpr std::array<Operazione, 15> kOperazioni = {{
    {u"I", u"Inserimento meta"},
    {u"A", u"Annullamento meta"},
    {u"M", u"Modifica dati mèta"},
    {u"R", u"Reset file mète"},
    {u"T", u"Memorizzazione dell'itinerario"},
    {u"CR", u"Cancellazione tappa"},
    {u"S", u"Stampare l'itinerario"},
    {u"IP", u"Inserimento tappe percorso"},
    {u"IS", u"Inserimento soste del percorso"},
    {u"AB", u"Rinuncia alle modifiche"},
    {u"CI", u"la rinuncia alle eventuali modifiche dell'itinerario"},
    {u"AI", u"Annullamento itinerario"},
    {u"DF", u"Memorizzazione dati mèta di default"},
    {u"EX", u"Export delle mète selezionate"},
    {u"IM", u"Import delle mète selezionate nei propri archivi"},
}};

QString NomeOperazione(const QString& codice) {
    for (const Operazione& operazione : kOperazioni) {
        if (codice == QStringView(operazione.codice)) return QString::fromUtf16(operazione.nome);
    }
    return codice;
}

}  // namespace

bool BoxConferma(Interaction& interaction, const QString& codiceOperazione, const QString& perso) {
    const QString nome = NomeOperazione(codiceOperazione);
    const QString domanda = u"Confermi "_s + nome.toLower() + u'?';
    if (perso.isEmpty()) return interaction.Ask({domanda, nome}) == Answer::Yes;
    return interaction.Ask({domanda + u"\n\n"_s + perso, nome, false, Answer::No}) == Answer::Yes;
}

}  // namespace cronovia
