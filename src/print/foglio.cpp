// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/foglio.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr Carattere kCarattereDelPiede{6.5};
constexpr double kInterlineaMinima = 2.3;  // of two lines in the least size, which one row has room for

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

TestoCollocato Collocato(const TestoColonna& testo, Misure& misure) {
    const double larghezza = misure.Larghezza(testo.testo, testo.carattere);
    return {testo.testo, testo.carattere, Ascissa(testo, larghezza), testo.y - misure.Discesa(testo.carattere),
            larghezza};
}

// A beginning of the text with at most so many units; half of a character beyond the first 65,536 is none.
QString Inizio(const QString& testo, qsizetype unita) {
    const bool spezzato = unita > 0 && unita < testo.size() && testo[unita].isLowSurrogate();
    return testo.left(spezzato ? unita - 1 : unita);
}

// The most units of a text, from `minimo` on, for which something holds that holds for shorter ones.
template <typename Vale>
qsizetype Massimo(qsizetype troppo, const Vale& vale) {
    qsizetype va = 0;
    while (troppo - va > 1) {
        const qsizetype mezzo = (va + troppo) / 2;
        (vale(mezzo) ? va : troppo) = mezzo;
    }
    return va;
}

}  // namespace

Foglio::Foglio(const QString& titolo, PieDiPagina piede, const QString& lavoro)
    : documento_{titolo, {}, lavoro, {}, {}, piede.carta}, piede_(std::move(piede)) {}

void Foglio::ApriPagina(double rigaStampa) {
    documento_.pagine.emplace_back();
    rigaStampa_ = rigaStampa;
}

QString Foglio::Tagliato(const QString& testo, const Carattere& carattere, double larghezza) {
    if (Entra(testo, carattere, larghezza)) return testo;
    const QString puntini = u"…"_s;
    const qsizetype unita = Massimo(
        testo.size(), [&](qsizetype n) { return Entra(Inizio(testo, n).trimmed() + puntini, carattere, larghezza); });
    return unita == 0 ? QString() : Inizio(testo, unita).trimmed() + puntini;
}

void Foglio::StampaTesto(const TestoColonna& testo) {
    TestoColonna scritto = testo;
    scritto.testo = Tagliato(testo.testo.trimmed(), testo.carattere, testo.x2 - testo.x1 + kEccedenza);
    if (!scritto.testo.isEmpty()) PaginaCorrente().testi.push_back(Collocato(scritto, misure_));
}

void Foglio::StampaAdattato(const TestoColonna& testo) {
    TestoColonna riga = testo;
    riga.testo = testo.testo.trimmed();
    const double larghezza = testo.x2 - testo.x1;
    riga.carattere = Ristretto(riga.testo, testo.carattere, larghezza);
    const qsizetype unita = Massimo(
        riga.testo.size() + 1, [&](qsizetype n) { return Entra(Inizio(riga.testo, n), riga.carattere, larghezza); });
    const qsizetype spazio = riga.testo.lastIndexOf(u' ', unita);
    if (unita < riga.testo.size() && spazio > 0) {
        TestoColonna prima = riga;
        prima.testo = riga.testo.left(spazio);
        prima.y -= kInterlineaMinima;
        StampaTesto(prima);
        riga.testo = riga.testo.mid(spazio + 1);
    } else {
        riga.y = RigaDaBase(BaseDaRiga(testo.y, testo.carattere), riga.carattere);
    }
    riga.testo = Tagliato(riga.testo, riga.carattere, larghezza);
    StampaTesto(riga);
}

void Foglio::StampaNumeroPagina(TestoColonna colonna) {
    documento_.numeri.push_back({documento_.pagine.size() - 1, PaginaCorrente().testi.size(), std::move(colonna)});
    PaginaCorrente().testi.emplace_back();
}

// Widths grow with the size as a straight line.
Carattere Foglio::Ristretto(const QString& testo, Carattere carattere, double larghezza) {
    const double unitaria = Larghezza(testo, {1, carattere.grassetto, carattere.corsivo});
    while (carattere.dimensione > kDimensioneMinima && unitaria * carattere.dimensione >= larghezza) {
        carattere.dimensione = std::max(carattere.dimensione - kPassoDimensione, kDimensioneMinima);
    }
    return carattere;
}

void Foglio::StampaLogo(const QRectF& area) { PaginaCorrente().immagini.push_back({area, u":/print/logo.svg"_s}); }

void Foglio::Segna(const QString& titolo, double y) {
    documento_.segnalibri.push_back({titolo, documento_.pagine.size() - 1, y});
}

void Foglio::StampaFinePagina(double sinistra, double destra) {
    if (!PaginaAperta()) return;
    Carattere data = kCarattereDelPiede;
    data.corsivo = true;
    constexpr double kPiede = kUltimaRiga + kAltezzaRiga;
    const double chiusura = rigaStampa_ - kAltezzaRiga;
    StampaTesto({piede_.oggi.toString(u"dd/MM/yyyy"_s), kPiede, sinistra, destra, data});
    StampaTesto({piede_.destra, kPiede, sinistra, destra + kRientroDestra, kCarattereDelPiede, Allineamento::Destra});
    Traccia(Linea{sinistra, chiusura, destra, chiusura, Filetto::Spesso});
    rigaStampa_ = kNessunaPagina;
}

Stampato Foglio::Concluso() {
    NumeraPagine(documento_);
    return std::move(documento_);
}

void NumeraPagine(Stampato& documento) {
    Misure misure;
    const QString totale = QString::number(documento.pagine.size());
    for (const NumeroPagina& numero : documento.numeri) {
        TestoColonna colonna = numero.colonna;
        colonna.testo = u"Pagina %1 di %2"_s.arg(QString::number(numero.pagina + 1), totale);
        documento.pagine[numero.pagina].testi[numero.testo] = Collocato(colonna, misure);
    }
}

}  // namespace cronovia
