#include "cli/json.h"

#include <algorithm>
#include <numeric>

namespace cronovia {

namespace {

constexpr int kRientro = 4;
constexpr qsizetype kBlocco = 8 * 1024;

QChar Esadecimale(unsigned int cifra) { return QChar(cifra < 10 ? u'0' + cifra : u'a' + cifra - 10); }

// What may stand in a text only under another name; surrogates are looked at in their pairs elsewhere.
bool DaNascondere(char16_t c) { return c < 0x20 || c == u'"' || c == u'\\' || QChar::isSurrogate(c); }

void Nascondi(char16_t c, QString& testo) {
    constexpr QStringView kCaratteri = u"\"\\\b\f\n\r\t";
    constexpr QStringView kNomi = u"\"\\bfnrt";
    testo += u'\\';
    if (const qsizetype posto = kCaratteri.indexOf(c); posto >= 0) {
        testo += kNomi[posto];
        return;
    }
    testo += u'u';
    for (const int bit : {12, 8, 4, 0}) testo += Esadecimale((c >> bit) & 0xFU);
}

}  // namespace

ScrittoreJson::~ScrittoreJson() { uscita_ << scritto_ << '\n'; }

void ScrittoreJson::Nome(QStringView nome) {
    Posto();
    FraVirgolette(nome);
    scritto_ += QStringView(u": ");
    dopoNome_ = true;
}

void ScrittoreJson::Testo(QStringView testo) {
    Posto();
    FraVirgolette(testo);
}

void ScrittoreJson::Numero(int numero) {
    Posto();
    scritto_ += QString::number(numero);
}

void ScrittoreJson::Testi(std::span<const QString> testi) {
    ApreArray();
    for (const QString& testo : testi) Testo(testo);
    ChiudeArray();
}

void ScrittoreJson::Apre(QChar parentesi) {
    Posto();
    scritto_ += parentesi;
    scritto_ += u'\n';
    rientro_ += kRientro;
    primo_ = true;
}

void ScrittoreJson::Chiude(QChar parentesi) {
    rientro_ -= kRientro;
    if (!primo_) scritto_ += u'\n';
    scritto_.resize(scritto_.size() + rientro_, u' ');
    scritto_ += parentesi;
    primo_ = false;
    if (scritto_.size() < kBlocco) return;
    uscita_ << scritto_;
    scritto_.resize(0);
}

// The place of the next value: behind its name, else on a line of its own.
void ScrittoreJson::Posto() {
    if (dopoNome_) {
        dopoNome_ = false;
        return;
    }
    if (!primo_) scritto_ += QStringView(u",\n");
    scritto_.resize(scritto_.size() + rientro_, u' ');
    primo_ = false;
}

void ScrittoreJson::FraVirgolette(QStringView testo) {
    scritto_ += u'"';
    qsizetype inizio = 0;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const char16_t c = testo[i].unicode();
        if (!DaNascondere(c)) continue;
        const bool coppia = QChar::isHighSurrogate(c) && i + 1 < testo.size() && testo[i + 1].isLowSurrogate();
        if (coppia) {
            ++i;
            continue;
        }
        scritto_ += testo.sliced(inizio, i - inizio);
        Nascondi(c, scritto_);
        inizio = i + 1;
    }
    scritto_ += testo.sliced(inizio);
    scritto_ += u'"';
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
