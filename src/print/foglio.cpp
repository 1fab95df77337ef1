#include "print/foglio.h"

#include <utility>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr Carattere kCarattereDelPiede{Famiglia::Times, 6};

double Ascissa(const TestoColonna& testo, double larghezza) {
    switch (testo.allineamento) {
        case Allineamento::Centro:
            return testo.x2 + (testo.x1 - testo.x2) / 2 - larghezza / 2 - kRientroCentro;
        case Allineamento::Destra:
            return testo.x2 - larghezza - kRientroDestra;
        case Allineamento::Sinistra:
            break;
    }
    return testo.x1;
}

// A beginning of the text with at most so many units; half of a character beyond the first 65,536 is none.
QString Inizio(const QString& testo, qsizetype unita) {
    const bool spezzato = unita > 0 && unita < testo.size() && testo[unita].isLowSurrogate();
    return testo.left(spezzato ? unita - 1 : unita);
}

}  // namespace

Foglio::Foglio(const QString& titolo, PieDiPagina piede, const QString& lavoro)
    : documento_{titolo, {}, lavoro}, piede_(std::move(piede)) {}

void Foglio::ApriPagina(int rigaStampa) {
    documento_.pagine.emplace_back();
    rigaStampa_ = rigaStampa;
}

QString Foglio::Tagliato(const QString& testo, const Carattere& carattere, double larghezza) {
    if (Entra(testo, carattere, larghezza)) return testo;
    qsizetype entra = 0;
    for (qsizetype troppo = testo.size(); troppo - entra > 1;) {
        const qsizetype mezzo = (entra + troppo) / 2;
        (Entra(Inizio(testo, mezzo), carattere, larghezza) ? entra : troppo) = mezzo;
    }
    return Inizio(testo, entra);
}

void Foglio::StampaTesto(const TestoColonna& testo) {
    const QString scritto = Tagliato(testo.testo.trimmed(), testo.carattere, testo.x2 - testo.x1 + kEccedenza);
    if (scritto.isEmpty()) return;
    const double larghezza = misure_.Larghezza(scritto, testo.carattere);
    const double base = BaseDaRiga(testo.y, testo.carattere);
    PaginaCorrente().testi.push_back({scritto, testo.carattere, Ascissa(testo, larghezza), base, larghezza});
}

Carattere Foglio::Ristretto(const QString& testo, Carattere carattere, double larghezza) {
    while (carattere.dimensione > kDimensioneMinima && !Entra(testo, carattere, larghezza)) {
        --carattere.dimensione;
    }
    return carattere;
}

void Foglio::StampaLogo(const QRectF& area) { PaginaCorrente().immagini.push_back({area, u":/print/logo.svg"_s}); }

void Foglio::StampaFinePagina(std::span<const int> bordi) {
    if (!PaginaAperta()) return;
    Carattere data = kCarattereDelPiede;
    data.corsivo = true;
    const auto y = static_cast<double>(rigaStampa_);
    const auto primo = static_cast<double>(bordi.front());
    const auto ultimo = static_cast<double>(bordi.back());
    StampaTesto({piede_.oggi.toString(u"dd/MM/yyyy"_s), y, primo, static_cast<double>(bordi[3]), data});
    StampaTesto({piede_.destra, y, primo, ultimo + kRientroDestra, kCarattereDelPiede, Allineamento::Destra});
    rigaStampa_ -= kAltezzaRiga;
    Traccia(Linea{primo, static_cast<double>(rigaStampa_), ultimo, static_cast<double>(rigaStampa_), Filetto::Spesso});
    rigaStampa_ = kNessunaPagina;
}

}  // namespace cronovia
