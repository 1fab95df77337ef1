// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_guida.h"

#include <array>
#include <map>
#include <span>

#include "calendar/testo.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<double, 6> kBordiNomi = {5, 43, 81, 119, 157, 195};
constexpr std::array<double, 5> kBordiVoci = {5, 45, 65, 185, 195};
constexpr std::array<QStringView, 5> kIntestazioniNomi = {u"Località", u"Località", u"Località", u"Località",
                                                          u"Località"};
constexpr std::array<QStringView, 4> kIntestazioniVoci = {u"Localita", u"Tipo", u"Descrizione", u"Sosta"};
constexpr double kRigaTitolo = 15;
constexpr double kMargineVoce = 1;    // of a text from the rule at its left
constexpr double kNumeroPagina = 28;  // what the page's number takes of the head
constexpr Carattere kCarattere{9};

QString LavoroGuida() { return u"Stampa della guida"_s; }

std::vector<LocalitaStampata> LocalitaDelViaggio(Archive& archive, const QString& codiceMeta) {
    std::vector<QString> nomi;
    for (const Record& tappa : RecordDellItinerario(archive, codiceMeta)) {
        const QString nome = tappa[itinerari::Localita].trimmed();
        if (!nome.isEmpty()) nomi.push_back(nome);
    }
    std::vector<LocalitaStampata> localita;
    for (VociGuida& voci : VociDelleLocalita(archive, nomi)) {
        if (voci.empty()) continue;
        const QString nome = voci.front().localita.trimmed();
        localita.push_back({nome, std::move(voci)});
    }
    return localita;
}

// Names that differ in case alone are the same locality.
std::vector<LocalitaStampata> TutteLeLocalita(Archive& archive) {
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(archive);
    std::map<QString, std::size_t> indici;
    std::vector<LocalitaStampata> localita;
    for (const Record& record :
         archive.Select({Table::GuidaCitta, {}}, {guida::Localita, guida::CodiceGuida, guida::Descrizione})) {
        const QString nome = record[guida::Localita].trimmed();
        const auto [indice, nuova] = indici.try_emplace(nome.toCaseFolded(), localita.size());
        if (nuova) localita.push_back({nome, {}});
        localita[indice->second].voci.push_back(VoceDelRecord(record, tipi));
    }
    return localita;
}

// The captions of the choices, without their mnemonics.
QString TitoloStampaGuida(const DatiStampaGuida& dati) {
    const QString dettaglio = dati.opzioni.dettaglio ? u"Località e Guida"_s : u"Località"_s;
    const QString lista = dati.opzioni.tutte ? u"Tutte"_s : u"Inerenti la Meta: "_s + dati.destinazione.trimmed();
    return u"Guida Città: - %1 - %2"_s.arg(dettaglio, lista);
}

class StampaPagine {
  public:
    StampaPagine(const DatiStampaGuida& dati, const PieDiPagina& piede)
        : dati_(dati),
          bordi_(dati.opzioni.dettaglio ? std::span<const double>(kBordiVoci) : kBordiNomi),
          foglio_(TitoloStampaGuida(dati), piede, LavoroGuida()) {}

    void Stampa(const LocalitaStampata& localita);
    void StampaFinePagina();
    /// Closes a line of names that is not full.
    void ChiudiRiga() {
        if (colonna_ > 0) foglio_.Avanza(kAltezzaRiga);
        colonna_ = 0;
    }
    [[nodiscard]] int NumeroPagina() const { return foglio_.NumeroPagina(); }
    [[nodiscard]] Stampato Concluso() { return foglio_.Concluso(); }

  private:
    void StampaIntestaPagina();
    void PreparaRiga();
    void FineRiga();
    void StampaNellaColonna(std::size_t colonna, const QString& testo, Carattere carattere, Allineamento dove);

    const DatiStampaGuida& dati_;
    std::span<const double> bordi_;
    Foglio foglio_;
    double cimaTabella_ = 0;
    std::size_t colonna_ = 0;  // for the next name
};

void StampaPagine::StampaNellaColonna(std::size_t colonna, const QString& testo, Carattere carattere,
                                      Allineamento dove) {
    const double x1 = bordi_[colonna];
    const double x2 = bordi_[colonna + 1];
    // A centred text stands as far left of the middle as one at the left begins behind its rule.
    foglio_.StampaAdattato({testo, foglio_.RigaStampa() - 0.5, x1 + kMargineVoce,
                            dove == Allineamento::Centro ? x2 + kMargineVoce : x2 - kMargineVoce / 2, carattere, dove});
}

void StampaPagine::StampaIntestaPagina() {
    const double primo = bordi_.front();
    const double ultimo = bordi_.back();
    foglio_.ApriPagina(kRigaTitolo);
    foglio_.Traccia(Riquadro{{primo, 3, ultimo - primo, kRigaTitolo - 3}, Filetto::Medio});
    foglio_.StampaLogo({primo + 1.5, 3.75, 21, 10.5});
    const QString titolo = TitoloStampaGuida(dati_);
    const double x1 = primo + 24;
    const double x2 = ultimo - kNumeroPagina;
    constexpr Carattere kCarattereTitolo{11, true};
    constexpr Carattere kCarattereNumero{9, true, true};
    const double y = kRigaTitolo - 3.7;
    foglio_.StampaTesto(
        {titolo, y, x1, x2, foglio_.Ristretto(titolo, kCarattereTitolo, x2 - x1 - 2), Allineamento::Centro});
    foglio_.StampaNumeroPagina({{},
                                foglio_.RigaDaBase(foglio_.BaseDaRiga(y, kCarattereTitolo), kCarattereNumero),
                                x2,
                                ultimo,
                                kCarattereNumero,
                                Allineamento::Centro});
    cimaTabella_ = kRigaTitolo + 2;
    foglio_.Avanza(kAltezzaRiga + 2);
    const std::span<const QStringView> intestazioni =
        dati_.opzioni.dettaglio ? std::span<const QStringView>(kIntestazioniVoci) : kIntestazioniNomi;
    for (std::size_t i = 0; i < intestazioni.size(); ++i) {
        const bool centrata = dati_.opzioni.dettaglio && i + 1 == intestazioni.size();
        StampaNellaColonna(i, intestazioni[i].toString(), {9, true},
                           centrata ? Allineamento::Centro : Allineamento::Sinistra);
    }
    const double sotto = foglio_.RigaStampa();
    foglio_.Traccia(Linea{primo, cimaTabella_, ultimo, cimaTabella_});
    foglio_.Traccia(Linea{primo, sotto, ultimo, sotto, Filetto::Spesso});
    foglio_.Avanza(kAltezzaRiga);
    colonna_ = 0;
}

void StampaPagine::PreparaRiga() {
    if (!foglio_.PaginaPiena()) return;
    StampaFinePagina();
    StampaIntestaPagina();
}

void StampaPagine::FineRiga() {
    const double y = foglio_.RigaStampa();
    foglio_.Traccia(Linea{bordi_.front(), y, bordi_.back(), y});
    foglio_.Avanza(kAltezzaRiga);
    colonna_ = 0;
}

void StampaPagine::Stampa(const LocalitaStampata& localita) {
    if (!dati_.opzioni.dettaglio) {
        PreparaRiga();
        StampaNellaColonna(colonna_++, localita.nome, kCarattere, Allineamento::Sinistra);
        if (colonna_ + 1 == bordi_.size()) FineRiga();
        return;
    }
    for (const VoceGuida& voce : localita.voci) {
        PreparaRiga();
        StampaNellaColonna(0, voce.localita, kCarattere, Allineamento::Sinistra);
        StampaNellaColonna(1, voce.tipo, kCarattere, Allineamento::Sinistra);
        StampaNellaColonna(2, voce.descrizione, kCarattere, Allineamento::Sinistra);
        StampaNellaColonna(3, TestoTempoVisita(voce.tempo), kCarattere, Allineamento::Centro);
        FineRiga();
    }
}

// The columns' rules end where the closing rule will be.
void StampaPagine::StampaFinePagina() {
    if (!foglio_.PaginaAperta()) return;
    const double fine = foglio_.RigaStampa() - kAltezzaRiga;
    for (const double x : bordi_) foglio_.Traccia(Linea{x, cimaTabella_, x, fine});
    foglio_.StampaFinePagina(bordi_.front(), bordi_.back());
}

}  // namespace

DatiStampaGuida PreparaStampaGuida(Archive& archive, const QString& codiceMeta, const QString& destinazione,
                                   const OpzioniStampaGuida& opzioni) {
    const ReadSnapshot momento(archive);
    return {opzioni, destinazione, opzioni.tutte ? TutteLeLocalita(archive) : LocalitaDelViaggio(archive, codiceMeta)};
}

QString NienteDaStampare(const OpzioniStampaGuida& opzioni) {
    return opzioni.tutte ? u"Niente da stampare: la guida non ha ancora annotazioni."_s
                         : u"Niente da stampare: la guida non ha annotazioni per le località di questa mèta."_s;
}

Stampato StampaGuida(const DatiStampaGuida& dati, const PieDiPagina& piede, Progress& progress) {
    progress.Title(LavoroGuida());
    StampaPagine stampa(dati, piede);
    int pagina = 0;
    double fatte = 0;
    for (const LocalitaStampata& localita : dati.localita) {
        progress.Advance(++fatte, static_cast<double>(dati.localita.size()));
        stampa.Stampa(localita);
        if (stampa.NumeroPagina() == pagina) continue;
        pagina = stampa.NumeroPagina();
        progress.Title(LavoroGuida() + u" (pag. %1)"_s.arg(pagina));
    }
    stampa.ChiudiRiga();
    stampa.StampaFinePagina();
    progress.Advance(0, 0);
    return stampa.Concluso();
}

}  // namespace cronovia
