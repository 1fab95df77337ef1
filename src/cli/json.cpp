// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json.h"

#include <algorithm>
#include <numeric>

#include "calendar/testo.h"

namespace cronovia {

namespace {

constexpr std::size_t kRientro = 4;
constexpr std::size_t kBlocco = 8 * 1024;

// What may stand in a text only under another name; surrogates are looked at in their pairs elsewhere.
bool DaNascondere(char16_t c) { return c == u'"' || c == u'\\' || QChar::isSurrogate(c) || Invisibile(c); }

void Nascondi(char16_t c, std::u16string& testo) {
    constexpr std::u16string_view kCaratteri = u"\"\\\b\f\n\r\t";
    constexpr std::u16string_view kNomi = u"\"\\bfnrt";
    testo += u'\\';
    if (const std::size_t indice = kCaratteri.find(c); indice != kCaratteri.npos) {
        testo += kNomi[indice];
        return;
    }
    testo += u'u';
    for (const int bit : {12, 8, 4, 0}) testo += u"0123456789abcdef"[(c >> bit) & 0xF];
}

std::u16string_view Caratteri(QStringView testo) { return {testo.utf16(), static_cast<std::size_t>(testo.size())}; }

}  // namespace

ScrittoreJson::~ScrittoreJson() {
    scritto_ += u'\n';
    Consegna();
}

void ScrittoreJson::Nome(QStringView nome) {
    IniziaValore();
    FraVirgolette(nome);
    scritto_ += u": ";
    dopoNome_ = true;
}

void ScrittoreJson::Testo(QStringView testo) {
    IniziaValore();
    FraVirgolette(testo);
}

void ScrittoreJson::Numero(int numero) {
    IniziaValore();
    scritto_ += Caratteri(QString::number(numero));
}

void ScrittoreJson::Logico(bool vero) {
    IniziaValore();
    scritto_ += vero ? u"true" : u"false";
}

void ScrittoreJson::Nullo() {
    IniziaValore();
    scritto_ += u"null";
}

void ScrittoreJson::Decimale(double numero, int decimali) {
    IniziaValore();
    scritto_ += Caratteri(QString::number(numero, 'f', decimali));
}

void ScrittoreJson::Testi(std::span<const QString> testi) {
    ApreArray();
    for (const QString& testo : testi) Testo(testo);
    ChiudeArray();
}

void ScrittoreJson::Apre(char16_t parentesi) {
    IniziaValore();
    scritto_ += parentesi;
    scritto_ += u'\n';
    rientro_ += kRientro;
    primo_ = true;
}

void ScrittoreJson::Chiude(char16_t parentesi) {
    rientro_ -= kRientro;
    if (!primo_) scritto_ += u'\n';
    scritto_.append(rientro_, u' ');
    scritto_ += parentesi;
    primo_ = false;
    if (scritto_.size() >= kBlocco) Consegna();
}

// The place of the next value: behind its name, else on a line of its own.
void ScrittoreJson::IniziaValore() {
    if (dopoNome_) {
        dopoNome_ = false;
        return;
    }
    if (!primo_) scritto_ += u",\n";
    scritto_.append(rientro_, u' ');
    primo_ = false;
}

void ScrittoreJson::FraVirgolette(QStringView valore) {
    const std::u16string_view testo = Caratteri(valore);
    scritto_ += u'"';
    std::size_t inizio = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const char16_t c = testo[i];
        if (!DaNascondere(c)) continue;
        const bool coppia = QChar::isHighSurrogate(c) && i + 1 < testo.size() && QChar::isLowSurrogate(testo[i + 1]);
        if (coppia) {
            ++i;
            continue;
        }
        scritto_ += testo.substr(inizio, i - inizio);
        Nascondi(c, scritto_);
        inizio = i + 1;
    }
    scritto_ += testo.substr(inizio);
    scritto_ += u'"';
}

void ScrittoreJson::Consegna() {
    uscita_ << QStringView(scritto_);
    scritto_.clear();
}

void ScriviOggetto(const QMap<QString, QString>& membri, ScrittoreJson& json) {
    json.ApreOggetto();
    for (auto membro = membri.constBegin(); membro != membri.constEnd(); ++membro) {
        json.Nome(membro.key());
        json.Testo(membro.value());
    }
    json.ChiudeOggetto();
}

void ScriviRecord(Table tabella, const std::vector<Record>& record, ScrittoreJson& json) {
    const std::vector<FieldDefinition>& campi = Definition(tabella).fields;
    std::vector<std::size_t> ordine(campi.size());
    std::iota(ordine.begin(), ordine.end(), std::size_t{0});
    std::sort(ordine.begin(), ordine.end(),
              [&](std::size_t a, std::size_t b) { return campi[a].name < campi[b].name; });
    json.ApreArray();
    for (const Record& riga : record) {
        json.ApreOggetto();
        for (const std::size_t i : ordine) {
            json.Nome(campi[i].name);
            json.Testo(QStringView(riga.values[i]).trimmed());
        }
        json.ChiudeOggetto();
    }
    json.ChiudeArray();
}

void ScriviTotali(const TestiTotali& totali, ScrittoreJson& json) {
    json.ApreOggetto();
    json.Nome(u"km");
    json.Testi(totali.km);
    json.Nome(u"tempo");
    json.Testi(totali.tempo);
    json.Nome(u"traghetti");
    json.Testo(totali.traghetti);
    json.ChiudeOggetto();
}

}  // namespace cronovia
