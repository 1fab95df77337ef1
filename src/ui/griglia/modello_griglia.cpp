#include "ui/griglia/modello_griglia.h"

#include <QFont>
#include <algorithm>

#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/griglia/icone_righe.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Qt::Alignment AllineamentoColonna(Colonna colonna) {
    switch (colonna) {
        case Colonna::Tappa:
        case Colonna::Note:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case Colonna::Km:
        case Colonna::KmProgressivi:
            return Qt::AlignRight | Qt::AlignVCenter;
        default:
            return Qt::AlignCenter;
    }
}

Segno SegnoDelTratto(const RigaCronovia& riga) {
    return riga.eventi.pranzo || riga.eventi.cena ? Segno::Pasto : Segno::Nessuno;
}

QString Significato(Segno segno) {
    switch (segno) {
        case Segno::FineGiorno:
            return u"Fine della giornata"_s;
        case Segno::Pasto:
            return u"Pasto"_s;
        case Segno::Riposo:
            return u"Seguono giorni di riposo"_s;
        case Segno::Sosta:
            return u"Sosta"_s;
        case Segno::Guida:
            return u"Guida delle città"_s;
        case Segno::Nessuno:
            break;
    }
    return {};
}

QVariant CarattereDelSegno(Segno segno) {
    QFont carattere;
    if (segno == Segno::FineGiorno || segno == Segno::Riposo) carattere.setBold(true);
    if (segno == Segno::Guida) carattere.setItalic(true);
    return carattere;
}

}  // namespace

void ModelloGriglia::MostraItinerario(const RigheItinerario& righe, const RiepilogoItinerario& riepilogo,
                                      int righeMinime) {
    const bool uguali = righe == righe_ && riepilogo.tappe == riepilogo_.tappe && righeMinime == righeMinime_;
    if (uguali && !cronovia_) return;
    beginResetModel();
    righe_ = righe;
    riepilogo_ = riepilogo;
    righeMinime_ = righeMinime;
    cronovia_.reset();
    endResetModel();
}

void ModelloGriglia::MostraCronovia(const Cronovia& cronovia) {
    beginResetModel();
    cronovia_ = cronovia;
    endResetModel();
}

int ModelloGriglia::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    if (cronovia_) return static_cast<int>(cronovia_->righe.size());
    return std::max(static_cast<int>(righe_.size()) + 1, righeMinime_);
}

int ModelloGriglia::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kColonne);
}

RigaGriglia ModelloGriglia::Testi(int riga) const {
    const auto indice = static_cast<std::size_t>(riga);
    if (cronovia_) return TestiDellaRiga(*cronovia_, indice);
    if (indice >= righe_.size()) return {};
    if (righe_[indice].localita.isEmpty()) return {{QString::number(riga + 1)}};
    return TestiDellaTappa(riga + 1, righe_[indice], riepilogo_.tappe[indice]);
}

Segno ModelloGriglia::SegnoDellaRiga(int riga) const {
    const auto indice = static_cast<std::size_t>(riga);
    if (!cronovia_) {
        return indice < righe_.size() && righe_[indice].fineGiorno ? Segno::FineGiorno : Segno::Nessuno;
    }
    const RigaCronovia& dati = cronovia_->righe[indice];
    if (dati.riposoDopo) return Segno::Riposo;
    if (dati.cambiaGiorno) return Segno::FineGiorno;
    switch (dati.genere) {
        case GenereRiga::Guida:
            return Segno::Guida;
        case GenereRiga::Sosta:
            return Segno::Sosta;
        default:
            return SegnoDelTratto(dati);
    }
}

QVariant ModelloGriglia::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto colonna = static_cast<Colonna>(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return Testi(index.row())[colonna];
        case Qt::ToolTipRole:
            return colonna == Colonna::Numero ? Significato(SegnoDellaRiga(index.row()))
                                              : TestoPiano(Testi(index.row())[colonna]);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AllineamentoColonna(colonna));
        case Qt::FontRole:
            return CarattereDelSegno(SegnoDellaRiga(index.row()));
        case Qt::DecorationRole:
            return colonna == Colonna::Numero ? QVariant(IconaDellaRiga(SegnoDellaRiga(index.row()))) : QVariant();
        case Qt::AccessibleTextRole: {
            const QString testo = Testi(index.row())[colonna];
            return colonna == Colonna::Numero ? QString(testo + u' ' + Significato(SegnoDellaRiga(index.row())))
                                              : testo;
        }
        default:
            return {};
    }
}

QVariant ModelloGriglia::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const auto colonna = static_cast<Colonna>(section);
    if (role == Qt::DisplayRole) return Intestazioni(cronovia_ ? Vista::Cronovia : Vista::Itinerario)[colonna];
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AllineamentoColonna(colonna));
    if (role == Qt::ToolTipRole && colonna == Colonna::LimiteRitorno) return SpiegazioneLimite();
    return {};
}

}  // namespace cronovia
