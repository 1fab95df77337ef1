// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/testata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Texts of one line: names of any length are whole, those that have no room become smaller.
class RigaDiTesta {
  public:
    RigaDiTesta(Foglio& foglio, double riga, const Carattere& guida)
        : foglio_(foglio), base_(foglio.BaseDaRiga(riga, guida)) {}

    void Stampa(const QString& testo, double x1, double x2, const Carattere& voluto, Allineamento dove) {
        const Carattere carattere = foglio_.Ristretto(testo, voluto, x2 - x1 - 2);
        foglio_.StampaTesto({testo, foglio_.RigaDaBase(base_, carattere), x1, x2, carattere, dove});
    }
    void NumeroPagina(double x1, double x2, Allineamento dove) {
        constexpr Carattere kTipoNumero{9, true, true};
        foglio_.StampaNumeroPagina({{}, foglio_.RigaDaBase(base_, kTipoNumero), x1, x2, kTipoNumero, dove});
    }

  private:
    Foglio& foglio_;
    double base_;
};

QString Periodo(const DatiStampa& dati) {
    if (!dati.meta.dataInizio) return {};
    const TestiFine& fine = dati.fine;
    const QString inizio = TestoData(*dati.meta.dataInizio);
    return fine.giorni.isEmpty() ? inizio : inizio + u" – "_s + fine.giorno + u'/' + fine.mese + u'/' + fine.anno;
}

}  // namespace

void ApriPrimaPagina(const DatiStampa& dati, Foglio& foglio) {
    constexpr double kNome = 29;
    constexpr double kNazione = 124;
    constexpr double kPagina = 166;
    constexpr Carattere kCarattereNome{12, true};
    foglio.ApriPagina(13);
    foglio.Traccia(Riquadro{{kSinistraFoglio, 3, kDestraFoglio - kSinistraFoglio, 12}, Filetto::Medio});
    foglio.StampaLogo({kSinistraFoglio + 1.5, 3.75, 21, 10.5});
    RigaDiTesta riga(foglio, foglio.RigaStampa() - 1.7, kCarattereNome);
    riga.Stampa(dati.meta.localita, kNome, kNazione, kCarattereNome, Allineamento::Centro);
    riga.Stampa(dati.meta.nazione, kNazione, kPagina, {10}, Allineamento::Centro);
    riga.NumeroPagina(kPagina, kDestraFoglio, Allineamento::Centro);
    foglio.Avanza(4);
    StampaCaratteristiche(dati, foglio);
}

void ApriPaginaSeguente(const DatiStampa& dati, Foglio& foglio) {
    constexpr double kPeriodo = 120;
    constexpr double kPagina = 166;
    constexpr Carattere kCarattereNome{10, true};
    foglio.ApriPagina(8);
    RigaDiTesta riga(foglio, foglio.RigaStampa(), kCarattereNome);
    const QString& nazione = dati.meta.nazione;
    riga.Stampa(dati.meta.localita + (nazione.isEmpty() ? QString() : u" (%1)"_s.arg(nazione)), 5, kPeriodo,
                kCarattereNome, Allineamento::Sinistra);
    riga.Stampa(Periodo(dati), kPeriodo, kPagina, {9}, Allineamento::Centro);
    riga.NumeroPagina(kPagina, kDestraFoglio + kRientroDestra, Allineamento::Destra);
}

}  // namespace cronovia
