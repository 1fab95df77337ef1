// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/luoghi_del_viaggio.h"

#include <algorithm>
#include <set>

#include "calendar/testo.h"
#include "places/nomi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// How many stages above a row tell where the journey is there.
constexpr std::size_t kTappePrima = 6;
constexpr qsizetype kMinimoPerCercare = 3;

// Collects names until there are enough, each once however it is written.
class RaccoltaNomi {
  public:
    RaccoltaNomi(const QString& inizio, int massimo) : inizio_(NomePiegato(inizio)), massimo_(massimo) {}

    [[nodiscard]] bool Piena() const { return static_cast<int>(nomi_.size()) >= massimo_; }
    [[nodiscard]] std::vector<PropostaNome> Nomi() && { return std::move(nomi_); }

    void Aggiungi(const QString& nome, const QString& spiegazione) {
        const QString scritto = Maiuscolo(nome.trimmed()).left(Width(Table::Itinerari, itinerari::Localita) - 1);
        const QString piegato = NomePiegato(scritto);
        if (Piena() || !piegato.startsWith(inizio_) || !visti_.insert(piegato).second) return;
        nomi_.push_back({scritto, spiegazione});
    }

  private:
    QString inizio_;
    int massimo_;
    std::set<QString> visti_;
    std::vector<PropostaNome> nomi_;
};

void AggiungiDallArchivio(Archive& archive, Table tabella, int campo, const QString& inizio, RaccoltaNomi& raccolta) {
    const NamePattern modello(ComeModello(inizio) + u'*');
    for (const Record& record : archive.Select({tabella, {{campo, modello}}}, {campo})) {
        if (raccolta.Piena()) return;
        raccolta.Aggiungi(record[campo], {});
    }
}

}  // namespace

const std::vector<PosizioneTappa>& LuoghiDelViaggio::Posizioni(Archive& archive, std::span<const Tappa> tappe,
                                                               const QString& nazione) {
    const Archive::Mark mark = archive.PresentMark();
    const bool stesse = letto_ == mark && nazione_ == nazione && std::ranges::equal(tappe_, tappe);
    if (!stesse) {
        posizioni_ = PosizioniDelViaggio(PosizioniConfermate(archive), gazzettino_, tappe, nazione);
        tappe_.assign(tappe.begin(), tappe.end());
        nazione_ = nazione;
        letto_ = mark;
        ++versione_;
    }
    return posizioni_;
}

// The typed kilometres shall not decide which place is meant: they are what is looked at.
std::optional<double> LuoghiDelViaggio::Diretta(Archive& archive, const Documento& documento, int riga,
                                                const QString& localita) {
    const RigheItinerario& righe = documento.Righe();
    const std::size_t sopra = std::min(static_cast<std::size_t>(std::max(0, riga - 1)), righe.size());
    if (sopra == 0 || localita.isEmpty() || !gazzettino_.Disponibile()) return std::nullopt;
    const std::size_t prima = sopra > kTappePrima ? sopra - kTappePrima : 0;
    std::vector<Tappa> tappe(righe.begin() + static_cast<std::ptrdiff_t>(prima),
                             righe.begin() + static_cast<std::ptrdiff_t>(sopra));
    Tappa nuova;
    nuova.localita = localita;
    nuova.kmDaIndicare = true;
    tappe.push_back(nuova);
    const auto posizioni =
        PosizioniDelViaggio(PosizioniConfermate(archive), gazzettino_, tappe, documento.Campi().nazione);
    const PosizioneTappa& da = posizioni[posizioni.size() - 2];
    const PosizioneTappa& a = posizioni.back();
    if (!da.Certa() || !a.Certa()) return std::nullopt;
    return DistanzaKm(*da.posizione, *a.posizione);
}

std::vector<PropostaNome> LuoghiDelViaggio::Proposte(Archive& archive, const Documento& documento,
                                                     const QString& inizio, int massimo) {
    RaccoltaNomi raccolta(inizio, massimo);
    if (NomePiegato(inizio).size() < 2) return {};
    for (const Tappa& tappa : documento.Righe()) raccolta.Aggiungi(tappa.localita, {});
    if (inizio.size() >= kMinimoPerCercare) {
        AggiungiDallArchivio(archive, Table::Itinerari, itinerari::Localita, inizio, raccolta);
        AggiungiDallArchivio(archive, Table::GuidaCitta, guida::Localita, inizio, raccolta);
    }
    for (const Luogo& luogo : gazzettino_.CheIniziano(inizio, massimo, CodiciNazioni(documento.Campi().nazione))) {
        raccolta.Aggiungi(luogo.trovato, NomeNazione(luogo.nazione));
    }
    return std::move(raccolta).Nomi();
}

}  // namespace cronovia
