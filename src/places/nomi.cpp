// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/nomi.h"

#include <algorithm>
#include <array>
#include <utility>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Letters that do not come apart into one without its mark. packaging/luoghi.py has the same.
constexpr std::array<std::pair<char16_t, QStringView>, 13> kLettere = {{{u'ø', u"o"},
                                                                        {u'æ', u"ae"},
                                                                        {u'œ', u"oe"},
                                                                        {u'ß', u"ss"},
                                                                        {u'ð', u"d"},
                                                                        {u'þ', u"th"},
                                                                        {u'ł', u"l"},
                                                                        {u'đ', u"d"},
                                                                        {u'ı', u"i"},
                                                                        {u'ħ', u"h"},
                                                                        {u'ŋ', u"n"},
                                                                        {u'ŧ', u"t"},
                                                                        {u'ə', u"e"}}};

constexpr std::array<std::pair<QStringView, QStringView>, 56> kNazioni = {{
    {u"AD", u"Andorra"},       {u"AL", u"Albania"},       {u"AT", u"Austria"},         {u"AX", u"Isole Åland"},
    {u"BA", u"Bosnia"},        {u"BE", u"Belgio"},        {u"BG", u"Bulgaria"},        {u"BY", u"Bielorussia"},
    {u"CH", u"Svizzera"},      {u"CY", u"Cipro"},         {u"CZ", u"Repubblica Ceca"}, {u"DE", u"Germania"},
    {u"DK", u"Danimarca"},     {u"EE", u"Estonia"},       {u"ES", u"Spagna"},          {u"FI", u"Finlandia"},
    {u"FO", u"Isole Fær Øer"}, {u"FR", u"Francia"},       {u"GB", u"Regno Unito"},     {u"GB", u"Inghilterra"},
    {u"GB", u"Scozia"},        {u"GB", u"Gran Bretagna"}, {u"GR", u"Grecia"},          {u"HR", u"Croazia"},
    {u"HU", u"Ungheria"},      {u"IE", u"Irlanda"},       {u"IS", u"Islanda"},         {u"IT", u"Italia"},
    {u"LI", u"Liechtenstein"}, {u"LT", u"Lituania"},      {u"LU", u"Lussemburgo"},     {u"LV", u"Lettonia"},
    {u"MA", u"Marocco"},       {u"MC", u"Monaco"},        {u"MD", u"Moldavia"},        {u"ME", u"Montenegro"},
    {u"MK", u"Macedonia"},     {u"MT", u"Malta"},         {u"NL", u"Paesi Bassi"},     {u"NL", u"Olanda"},
    {u"NO", u"Norvegia"},      {u"PL", u"Polonia"},       {u"PT", u"Portogallo"},      {u"RO", u"Romania"},
    {u"RS", u"Serbia"},        {u"RU", u"Russia"},        {u"SE", u"Svezia"},          {u"SI", u"Slovenia"},
    {u"SK", u"Slovacchia"},    {u"SM", u"San Marino"},    {u"TN", u"Tunisia"},         {u"TR", u"Turchia"},
    {u"UA", u"Ucraina"},       {u"VA", u"Vaticano"},      {u"XK", u"Kosovo"},          {u"CZ", u"Cechia"},
}};

void Aggiungi(QStringList& forme, const QString& forma) {
    if (!forma.isEmpty() && !forme.contains(forma)) forme += forma;
}

// "S. VITO", "S VITO", "ST. MORITZ": what the short word may stand for.
void AggiungiSanti(QStringView nome, QStringList& forme) {
    const qsizetype fine = std::find_if(nome.begin(), nome.end(), [](QChar c) { return !c.isLetter(); }) - nome.begin();
    const QString parola = nome.first(fine).toString().toLower();
    const QString resto = NomePiegato(nome.sliced(fine));
    if (resto.isEmpty()) return;
    if (parola == "s"_L1) {
        for (const QStringView santo : {u"san", u"santa", u"sant", u"santo"}) Aggiungi(forme, santo.toString() + resto);
    } else if (parola == "st"_L1 || parola == "ste"_L1) {
        for (const QStringView santo : {u"saint", u"sankt", u"sainte"}) Aggiungi(forme, santo.toString() + resto);
    }
}

}  // namespace

QString NomePiegato(QStringView nome) {
    QString piano;
    piano.reserve(nome.size());
    const QString piccolo = nome.toString().toLower();
    for (const QChar c : piccolo) {
        const auto* lettera =
            std::find_if(kLettere.begin(), kLettere.end(), [&](const auto& l) { return l.first == c; });
        if (lettera == kLettere.end()) {
            piano += c;
        } else {
            piano += lettera->second;
        }
    }
    const bool ascii = std::all_of(piano.begin(), piano.end(), [](QChar c) { return c.unicode() < 128; });
    if (!ascii) piano = piano.normalized(QString::NormalizationForm_D);
    piano.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    return piano;
}

QStringList FormePiegate(QStringView nome) {
    QStringList forme;
    Aggiungi(forme, NomePiegato(nome));
    AggiungiSanti(nome.trimmed(), forme);
    const auto* const fine =
        std::find_if(nome.begin(), nome.end(), [](QChar c) { return QStringView(u"(/,").contains(c); });
    if (fine != nome.end()) Aggiungi(forme, NomePiegato(nome.first(fine - nome.begin())));
    return forme;
}

QStringList CodiciNazioni(QStringView testo) {
    const QString piegato = NomePiegato(testo);
    QStringList codici;
    for (const auto& [codice, nome] : kNazioni) {
        if (piegato.contains(NomePiegato(nome))) Aggiungi(codici, codice.toString());
    }
    return codici;
}

QString NomeNazione(const QString& codice) {
    const auto* nazione =
        std::find_if(kNazioni.begin(), kNazioni.end(), [&](const auto& n) { return n.first == codice; });
    return nazione == kNazioni.end() ? codice : nazione->second.toString();
}

}  // namespace cronovia
