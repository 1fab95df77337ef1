// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/giornate/modello_giornate.h"

#include <algorithm>

#include "calendar/testo.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Breve(const Giornata& giornata) {
    QStringList parti = TestoGiornata(giornata).split(u" · "_s);
    parti.resize(std::min<qsizetype>(parti.size(), giornata.km > 0 ? 3 : 2));
    return parti.join(u" · "_s);
}

QString InParole(const PezzoDelGiorno& pezzo) {
    const QString ore = TestoOreBrevi(pezzo.da) + u'-' + TestoOreBrevi(pezzo.a) + u' ';
    return ore + Aspetto(pezzo.genere).nome.toString() + (pezzo.luogo.isEmpty() ? QString() : u", "_s + pezzo.luogo);
}

}  // namespace

void ModelloGiornate::Mostra(const Cronovia* cronovia, const std::vector<Giornata>& giornate) {
    beginResetModel();
    strisce_.clear();
    testi_.clear();
    primaRiga_.clear();
    motivi_.clear();
    if (cronovia != nullptr) {
        strisce_ = Strisce(*cronovia, giornate);
        int riga = 0;
        for (const Giornata& giornata : giornate) {
            testi_.push_back({Breve(giornata), RigaGiornata(giornata, *cronovia)});
            primaRiga_.push_back(riga);
            riga += static_cast<int>(giornata.righe.size());
        }
        motivi_ = MotiviDelleRighe(*cronovia);
        for (const EsitoOra& ora : cronovia->ore) motivi_[ora.riga] = TestoBreve(ora) + u": "_s + Testo(ora, *cronovia);
        visite_ = {cronovia->orario.Parametri().inizioVisita, cronovia->orario.Parametri().fineVisita};
    }
    endResetModel();
}

QString ModelloGiornate::TestoDel(const PezzoDelGiorno& pezzo) const {
    const auto motivo = motivi_.find(pezzo.riga);
    return motivo == motivi_.end() ? InParole(pezzo) : InParole(pezzo) + u'\n' + motivo->second;
}

std::optional<int> ModelloGiornate::GiornataDi(int riga) const {
    const auto dopo = std::upper_bound(primaRiga_.begin(), primaRiga_.end(), riga);
    return dopo == primaRiga_.begin() ? std::nullopt : std::optional(static_cast<int>(dopo - primaRiga_.begin()) - 1);
}

int ModelloGiornate::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(testi_.size());
}

QVariant ModelloGiornate::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const QString& intero = testi_[static_cast<std::size_t>(index.row())].intero;
    switch (role) {
        case Qt::DisplayRole:
            return Visibile(intero);
        case Qt::ToolTipRole:
            return TestoPiano(intero);
        case Qt::AccessibleTextRole: {
            QStringList parti = {intero};
            for (const PezzoDelGiorno& pezzo : Striscia(index.row())) parti += InParole(pezzo);
            return parti.join(u"; "_s);
        }
        default:
            return {};
    }
}

}  // namespace cronovia
