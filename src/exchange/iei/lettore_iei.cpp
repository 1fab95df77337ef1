// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/lettore_iei.h"

#include <QIODevice>
#include <algorithm>
#include <utility>

#include "files/windows1252.h"

namespace cronovia {

namespace {

constexpr std::array<Table, 3> kSezioni = {Table::MeteVandro, Table::Itinerari, Table::GuidaCitta};

// Some editors put it at the start of whatever they save.
constexpr QByteArrayView kSegnoUtf8 = "\xEF\xBB\xBF";

// Its own fields, and behind them the added ones.
std::vector<FieldDefinition> CampiDellaSezione(Table tabella) {
    std::vector<FieldDefinition> campi = Definition(tabella).fields;
    for (const CampiAggiunti& aggiunti : AggiuntiAllaSezione(tabella)) {
        const auto& altri = Definition(aggiunti.tabella).fields;
        campi.insert(campi.end(), altri.begin() + aggiunti.primo, altri.end());
    }
    return campi;
}

std::size_t Numero(Table tabella) { return static_cast<std::size_t>(tabella) - 1; }

// Empty when no column is named as a field. Of two columns of the same name the first one counts.
std::vector<int> MappaDelleColonne(Table tabella, const Colonne& colonne) {
    const std::vector<FieldDefinition> campi = CampiDellaSezione(tabella);
    std::vector<int> mappa;
    bool qualcuno = false;
    for (const QByteArrayView nome : colonne.valori) {
        const QString testo = DaWindows1252(nome);
        const auto campo =
            std::find_if(campi.begin(), campi.end(), [&](const FieldDefinition& c) { return c.name == testo; });
        const int indice = campo == campi.end() ? -1 : static_cast<int>(campo - campi.begin());
        const bool nuovo = indice >= 0 && std::find(mappa.begin(), mappa.end(), indice) == mappa.end();
        mappa.push_back(nuovo ? indice : -1);
        qualcuno = qualcuno || nuovo;
    }
    return qualcuno ? mappa : std::vector<int>();
}

void Metti(const QString& valore, std::size_t campo, RigaIei& riga) {
    if (campo < riga.valori.size()) {
        riga.valori[campo] = valore;
        return;
    }
    if (valore.isEmpty()) return;
    campo -= riga.valori.size();
    for (const CampiAggiunti& aggiunti : AggiuntiAllaSezione(riga.tabella)) {
        const std::size_t campi = Definition(aggiunti.tabella).fields.size();
        const std::size_t posto = campo + static_cast<std::size_t>(aggiunti.primo);
        if (posto < campi) {
            std::vector<QString>& valori = riga.aggiunti[aggiunti.tabella];
            valori.resize(campi);
            valori[posto] = valore;
            return;
        }
        campo = posto - campi;
    }
}

}  // namespace

std::span<const CampiAggiunti> AggiuntiAllaSezione(Table tabella) {
    static constexpr std::array<CampiAggiunti, 1> delleMete = {{{Table::Scadenze, scadenze::RientroData}}};
    static constexpr std::array<CampiAggiunti, 2> delleTappe = {
        {{Table::Vincoli, vincoli::TraghettoOra}, {Table::Stime, stime::KmStimati}}};
    if (tabella == Table::MeteVandro) return delleMete;
    if (tabella == Table::Itinerari) return delleTappe;
    return {};
}

LettoreIei::LettoreIei(QIODevice& device, Lettura lettura, Progress& progress)
    : righe_(device),
      lettura_(std::move(lettura)),
      progress_(progress),
      lunghezza_(static_cast<double>(device.size())) {}

bool LettoreIei::Leggi(RigaIei& riga) {
    while (righe_.Avanza()) {
        progress_.Advance(static_cast<double>(righe_.Letti()), lunghezza_);
        HeedStop(progress_);
        if (righe_.TroppoLunga()) ++scarti_.righeTroppoLunghe;
        QByteArrayView testo = righe_.Riga();
        if (std::exchange(prima_, false) && testo.startsWith(kSegnoUtf8)) testo = testo.sliced(kSegnoUtf8.size());
        if (testo.isEmpty()) continue;
        const bool inizioSezione = CambiaSezione(testo);
        if (!sezione_) {
            ++scarti_.righePrimaDelleSezioni;
        } else if (lettura_.solo.value_or(*sezione_) == *sezione_ && Prendi(testo, inizioSezione, riga)) {
            return true;
        }
    }
    return false;
}

const LettoreIei::MappaColonne& LettoreIei::Mappa(Table tabella) const { return mappe_.at(Numero(tabella)); }

bool LettoreIei::HaCampo(Table tabella, int campo) const {
    const MappaColonne& mappa = Mappa(tabella);
    return std::find(mappa.begin(), mappa.end(), campo) != mappa.end();
}

// A line with the bytes of several sections belongs to the last of them, one without any to the section before it.
bool LettoreIei::CambiaSezione(QByteArrayView testo) {
    const std::optional<Table> prima = sezione_;
    for (const Table tabella : kSezioni) {
        if (testo.contains(SeparatoreSezione(tabella))) sezione_ = tabella;
    }
    if (sezione_ == prima) return false;
    progress_.Title(lettura_.titoloPrima + Definition(*sezione_).name + lettura_.titoloDopo);
    return true;
}

// True for a record. A section may be interrupted by a line whose name happens to hold the byte of another one: what
// follows then opens the section again, but only a line with names of fields is taken for its head.
bool LettoreIei::Prendi(QByteArrayView testo, bool inizioSezione, RigaIei& riga) {
    const Colonne colonne = SeparaColonne(testo);
    scarti_.caratteriTolti += colonne.tolti;
    scarti_.valoriInPiu += colonne.inPiu;
    if (colonne.valori.empty()) return false;
    MappaColonne& mappa = mappe_.at(Numero(*sezione_));
    if (inizioSezione || mappa.empty()) {
        MappaColonne nuova = MappaDelleColonne(*sezione_, colonne);
        if (!nuova.empty()) {
            mappa = std::move(nuova);
            return false;
        }
    }
    if (mappa.empty()) {
        ++scarti_.righeNonCapite;
        return false;
    }
    Riempi(colonne, riga);
    return true;
}

void LettoreIei::Riempi(const Colonne& colonne, RigaIei& riga) {
    const MappaColonne& mappa = Mappa(*sezione_);
    riga.tabella = *sezione_;
    riga.valori.assign(Definition(*sezione_).fields.size(), QString());
    riga.aggiunti.clear();
    const std::size_t comuni = std::min(mappa.size(), colonne.valori.size());
    for (std::size_t i = 0; i < comuni; ++i) {
        if (mappa[i] >= 0) Metti(DaWindows1252(colonne.valori[i]), static_cast<std::size_t>(mappa[i]), riga);
    }
    if (colonne.valori.size() < mappa.size()) ++scarti_.righeIncomplete;
    scarti_.valoriInPiu += std::count_if(colonne.valori.begin() + static_cast<std::ptrdiff_t>(comuni),
                                         colonne.valori.end(), [](QByteArrayView valore) { return !valore.isEmpty(); });
}

}  // namespace cronovia
