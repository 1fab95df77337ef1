// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/modello_griglia.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "calendar/testo.h"
#include "itinerary/suggerimenti.h"
#include "schedule/testi_giornata.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/lettura.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/griglia/icone_righe.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Qt::Alignment AllineamentoColonna(Colonna colonna) {
    switch (colonna) {
        case Colonna::Tappa:
        case Colonna::Note:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case Colonna::Numero:
        case Colonna::Km:
        case Colonna::KmProgressivi:
        case Colonna::Tempo:
        case Colonna::Sosta:
        case Colonna::Guida:
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
        case Segno::Fissato:
            return u"Orari e note"_s;
        case Segno::GiornataAperta:
        case Segno::GiornataChiusa:
        case Segno::Nessuno:
            break;
    }
    return {};
}

QVariant CarattereDelSegno(Segno segno) {
    QFont carattere;
    if (segno != Segno::Pasto && segno != Segno::Sosta && segno != Segno::Guida && segno != Segno::Nessuno) {
        carattere.setBold(true);
    }
    if (segno == Segno::Guida) carattere.setItalic(true);
    return carattere;
}

QString Testo(const CambioGiorno& cambio) {
    return cambio.da == cambio.a ? u"Giorno %1"_s.arg(cambio.da) : u"Giorni %1-%2"_s.arg(cambio.da).arg(cambio.a);
}

// How long one could stay here and be home in time all the same.
QString TestoMargine(Centesimi margine) {
    if (margine < 0_cent) return u"Il limite è passato da %1 ore."_s.arg(TestoOreBrevi(0_cent - margine));
    const Durata durata = InDurata(margine, kGiornoOrologio);
    const QString ore = TestoOreBrevi(InCentesimi({0, durata.ore, durata.minuti}, kGiornoOrologio));
    if (durata.giorni == 0) return u"Margine: %1 ore."_s.arg(ore);
    return u"Margine: %1 %2 e %3 ore."_s.arg(QString::number(durata.giorni),
                                             durata.giorni == 1 ? u"giorno"_s : u"giorni"_s, ore);
}

// A little of the text's colour, whatever the theme.
QBrush SfondoDellaLinea() {
    const QPalette& colori = QApplication::palette();
    return Misto(colori.color(QPalette::Base), colori.color(QPalette::Text), 12);
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
    giornate_.clear();
    mostrate_ = {};
    endResetModel();
}

void ModelloGriglia::SegnaGiorni(const std::vector<CambioGiorno>& cambi) {
    if (cambi == cambi_) return;
    std::vector<CambioGiorno> toccati = std::exchange(cambi_, cambi);
    toccati.insert(toccati.end(), cambi.begin(), cambi.end());
    if (cronovia_) return;
    for (const CambioGiorno& cambio : toccati) {
        if (cambio.riga > rowCount()) continue;
        Q_EMIT dataChanged(index(cambio.riga - 1, 0), index(cambio.riga - 1, columnCount() - 1));
    }
}

// Where days begin at a row of the itinerary; null elsewhere.
const CambioGiorno* ModelloGriglia::Cambio(int riga) const {
    if (cronovia_) return nullptr;
    const auto cambio = std::lower_bound(cambi_.begin(), cambi_.end(), riga + 1,
                                         [](const CambioGiorno& c, int cercata) { return c.riga < cercata; });
    return cambio != cambi_.end() && cambio->riga == riga + 1 ? &*cambio : nullptr;
}

void ModelloGriglia::MostraCronovia(const Cronovia& cronovia, const std::vector<Giornata>& giornate) {
    beginResetModel();
    cronovia_ = cronovia;
    giornate_ = giornate;
    motivi_ = MotiviDelleRighe(cronovia);
    mostrate_ = RigheMostrate(giornate_, mostrate_);
    endResetModel();
}

std::optional<int> ModelloGriglia::Linea(int riga) const {
    return cronovia_ && riga >= 0 && riga < mostrate_.Numero() ? mostrate_.Linea(riga) : std::nullopt;
}

void ModelloGriglia::Chiudi(int giornata, bool chiusa) {
    if (mostrate_.Chiusa(giornata) == chiusa) return;
    const int linea = mostrate_.DoveLinea(giornata);
    const int righe = mostrate_.RigheDi(giornata);
    if (righe == 0) {
        mostrate_.Chiudi(giornata, chiusa);
    } else if (chiusa) {
        beginRemoveRows({}, linea + 1, linea + righe);
        mostrate_.Chiudi(giornata, chiusa);
        endRemoveRows();
    } else {
        beginInsertRows({}, linea + 1, linea + righe);
        mostrate_.Chiudi(giornata, chiusa);
        endInsertRows();
    }
    Q_EMIT dataChanged(index(linea, 0), index(linea, columnCount() - 1));
}

int ModelloGriglia::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    if (cronovia_) return mostrate_.Numero();
    return std::max(static_cast<int>(righe_.size()) + 1, righeMinime_);
}

int ModelloGriglia::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kColonne);
}

RigaGriglia ModelloGriglia::Testi(int riga) const {
    if (cronovia_) return TestiMostrati(*cronovia_, static_cast<std::size_t>(*mostrate_.Riga(riga)));
    const auto indice = static_cast<std::size_t>(riga);
    if (indice >= righe_.size()) return {};
    if (righe_[indice].localita.isEmpty()) return {{QString::number(riga + 1)}};
    return TestiDellaTappa(riga + 1, righe_[indice], riepilogo_.tappe[indice]);
}

Segno ModelloGriglia::SegnoDellaRiga(int riga) const {
    if (!cronovia_) {
        const auto indice = static_cast<std::size_t>(riga);
        if (indice >= righe_.size()) return Segno::Nessuno;
        return righe_[indice].fineGiorno ? Segno::FineGiorno : righe_[indice].vincoli ? Segno::Fissato : Segno::Nessuno;
    }
    const std::optional<int> posizione = mostrate_.Riga(riga);
    if (!posizione) {
        return mostrate_.Chiusa(mostrate_.GiornataDi(riga)) ? Segno::GiornataChiusa : Segno::GiornataAperta;
    }
    const RigaCronovia& dati = cronovia_->righe[static_cast<std::size_t>(*posizione)];
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

// The stage that a row is of; null for free rows.
const Tappa* ModelloGriglia::TappaDi(int riga) const {
    const auto indice = static_cast<std::size_t>(riga);
    if (!cronovia_) return indice < righe_.size() ? &righe_[indice] : nullptr;
    const RigaCronovia& dati = cronovia_->righe[static_cast<std::size_t>(*mostrate_.Riga(riga))];
    return &cronovia_->tabella.righe[static_cast<std::size_t>(dati.tappa)].tappa;
}

// Whether it is about an hour that others set and that is missed.
bool ModelloGriglia::InRitardo(int riga) const {
    return cronovia_ &&
           cronovia::InRitardo(*cronovia_, cronovia_->righe[static_cast<std::size_t>(*mostrate_.Riga(riga))]);
}

// Why something of a row is later than one would expect, or takes no time.
QString ModelloGriglia::Istruzione(int riga, Colonna colonna) const {
    if (colonna == Colonna::Numero) return Significato(SegnoDellaRiga(riga));
    QStringList testi = {Testi(riga)[colonna]};
    if (const Tappa* tappa = TappaDi(riga); tappa != nullptr && colonna == Colonna::NumeroStrada) {
        const bool senzaTempo = !testi.front().isEmpty() && tappa->Traghetto() && !tappa->vincoli.ConTraghetto() &&
                                tappa->km == 0 && tappa->sosta.Nulla();
        if (senzaTempo) testi += Testo(cronovia::Suggerimento::TraghettoSenzaTempo);
    }
    if (const Tappa* tappa = TappaDi(riga); tappa != nullptr && colonna == Colonna::Km && tappa->kmStimati) {
        if (!testi.front().isEmpty()) testi += u"chilometri stimati dalla linea d'aria"_s;
    }
    if (cronovia_ && colonna == Colonna::Note) {
        const auto motivo = motivi_.find(*mostrate_.Riga(riga));
        if (motivo != motivi_.end()) testi += motivo->second;
    }
    if (cronovia_ && colonna == Colonna::LimiteRitorno) {
        const RigaCronovia& dati = cronovia_->righe[static_cast<std::size_t>(*mostrate_.Riga(riga))];
        if (const auto margine = MargineRientro(dati)) testi += TestoMargine(*margine);
    }
    if (const CambioGiorno* cambio = Cambio(riga); cambio != nullptr && colonna == Colonna::Tappa) {
        testi += Testo(*cambio) + (cambio->dentro ? u": comincia lungo la strada o durante la sosta"_s
                                                  : u": comincia con la partenza per questa tappa"_s);
    }
    testi.removeAll(QString());
    return TestoPiano(testi.join(u'\n'));
}

// What those hear who do not see the signs.
QString ModelloGriglia::TestoParlato(int riga, Colonna colonna) const {
    const QString testo = Testi(riga)[colonna];
    if (colonna == Colonna::Numero) return testo + u' ' + Significato(SegnoDellaRiga(riga));
    const CambioGiorno* cambio = colonna == Colonna::Tappa ? Cambio(riga) : nullptr;
    return cambio == nullptr ? testo : testo + u", comincia "_s + Testo(*cambio).toLower();
}

// The line of a day is one text, which runs over all columns.
QVariant ModelloGriglia::DatiDellaLinea(int giornata, Colonna colonna, int role) const {
    const Giornata& dati = giornate_[static_cast<std::size_t>(giornata)];
    const int riga = mostrate_.DoveLinea(giornata);
    if (role == kRuoloLinea) return true;
    if (role == Qt::BackgroundRole) return SfondoDellaLinea();
    if (role == Qt::FontRole) return CarattereDelSegno(SegnoDellaRiga(riga));
    if (colonna != Colonna::Numero) return {};
    switch (role) {
        case Qt::DisplayRole:
            return Visibile(RigaGiornata(dati, *cronovia_));
        case Qt::AccessibleTextRole:
            return RigaGiornata(dati, *cronovia_) + (mostrate_.Chiusa(giornata) ? u", chiusa"_s : u", aperta"_s);
        case Qt::ToolTipRole:
            return TestoPiano(RigaGiornata(dati, *cronovia_));
        case Qt::DecorationRole:
            return IconaDellaRiga(SegnoDellaRiga(riga));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
        default:
            return {};
    }
}

QVariant ModelloGriglia::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto colonna = static_cast<Colonna>(index.column());
    if (const std::optional<int> giornata = Linea(index.row())) return DatiDellaLinea(*giornata, colonna, role);
    switch (role) {
        case Qt::DisplayRole:
            return Visibile(Testi(index.row())[colonna]);
        case Qt::ToolTipRole:
            return Istruzione(index.row(), colonna);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AllineamentoColonna(colonna));
        case Qt::FontRole:
            return CarattereDelSegno(SegnoDellaRiga(index.row()));
        case Qt::ForegroundRole:
            return InRitardo(index.row())
                       ? QVariant(QBrush(ColoreRitardo(QApplication::palette(), QPalette::Base, QPalette::Text)))
                       : QVariant();
        case Qt::DecorationRole:
            return colonna == Colonna::Numero ? QVariant(IconaDellaRiga(SegnoDellaRiga(index.row()))) : QVariant();
        case Qt::AccessibleTextRole:
            return colonna == Colonna::Numero ? RigaLetta(index, TestoParlato(index.row(), colonna))
                                              : TestoParlato(index.row(), colonna);
        case kRuoloCambio:
            return Cambio(index.row()) == nullptr ? QString() : Testo(*Cambio(index.row()));
        case kRuoloCambioDentro:
            return Cambio(index.row()) != nullptr && Cambio(index.row())->dentro;
        default:
            return {};
    }
}

QVariant ModelloGriglia::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const auto colonna = static_cast<Colonna>(section);
    if (role == Qt::DisplayRole) return Intestazioni(cronovia_ ? Vista::Cronovia : Vista::Itinerario)[colonna];
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AllineamentoColonna(colonna));
    if (role == Qt::ToolTipRole && colonna == Colonna::LimiteRitorno) return TestoPiano(SpiegazioneLimite());
    return {};
}

}  // namespace cronovia
