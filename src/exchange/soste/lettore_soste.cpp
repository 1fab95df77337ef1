// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/soste/lettore_soste.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <array>
#include <optional>

#include "calendar/testo.h"
#include "exchange/navigatori/lettore_navigatore.h"
#include "exchange/percorsi/righe_testo.h"
#include "files/celle.h"
#include "files/lettore_righe.h"
#include "interaction/failure.h"
#include "places/nomi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimeRigheCampo = 100;
constexpr qsizetype kMassimoMostrato = 40;

enum ColonnaSosta { kNome, kLatitudine, kLongitudine, kTipo, kDescrizione, kNote };
constexpr std::size_t kColonneSosta = 6;

// Where each column stands in a line; -1 for one that the table lacks.
using PostoColonne = std::array<int, kColonneSosta>;

// The names that headers go by, folded.
std::optional<ColonnaSosta> ColonnaDetta(const QString& intestazione) {
    static const std::array<QStringList, kColonneSosta> nomi = {{
        {u"nome"_s, u"name"_s, u"titolo"_s, u"title"_s, u"denominazione"_s},
        {u"lat"_s, u"latitudine"_s, u"latitude"_s, u"y"_s},
        {u"lon"_s, u"lng"_s, u"long"_s, u"longitudine"_s, u"longitude"_s, u"x"_s},
        {u"tipo"_s, u"type"_s, u"tipologia"_s, u"categoria"_s, u"category"_s},
        {u"descrizione"_s, u"description"_s, u"desc"_s},
        {u"note"_s, u"nota"_s, u"notes"_s, u"commento"_s, u"comment"_s},
    }};
    const QString piegata = NomePiegato(intestazione);
    for (std::size_t i = 0; i < kColonneSosta; ++i) {
        if (nomi[i].contains(piegata)) return static_cast<ColonnaSosta>(i);
    }
    return std::nullopt;
}

// The columns that a first line names; nothing when it does not say where the places lie.
std::optional<PostoColonne> DaIntestazione(const QStringList& campi) {
    PostoColonne posto{};
    posto.fill(-1);
    for (int i = 0; i < campi.size(); ++i) {
        const auto colonna = ColonnaDetta(campi[i]);
        if (colonna && posto[*colonna] < 0) posto[*colonna] = i;
    }
    if (posto[kLatitudine] < 0 || posto[kLongitudine] < 0) return std::nullopt;
    if (posto[kNome] < 0) std::swap(posto[kNome], posto[kDescrizione]);  // what the only text says is the name
    return posto;
}

constexpr PostoColonne kSenzaIntestazione = {2, 1, 0, -1, -1, 3};

// One line: no ends of lines within a text.
QString SuUnaRiga(const QString& testo) { return Visibile(testo).simplified(); }

// Maps on the web write their notes as pages.
QString SenzaMarche(const QString& note) {
    static const QRegularExpression marca(u"<[/a-zA-Z][^<>]*>"_s);
    return QString(note).replace(marca, u" "_s).simplified();
}

class LettoreTabella {
  public:
    LettoreTabella(QIODevice& device, const QString& path) : righe_(device), nome_(QDir::toNativeSeparators(path)) {}

    std::vector<SostaLetta> Leggi() {
        do {
            if (!Avanza()) NonRiconosciuto();
        } while (testo_.trimmed().isEmpty());
        bool altra = Riconosci() ? true : AvanzaPiena();
        for (; altra; altra = AvanzaPiena()) Aggiungi(Campi());
        return std::move(soste_);
    }

  private:
    bool Avanza() {
        if (!righe_.Avanza()) return false;
        ++riga_;
        inizio_ = riga_;
        testo_ = righe_.Testo();
        if (righe_.TroppoLunga()) Rifiuta(u"è troppo lunga"_s);
        return true;
    }
    bool AvanzaPiena() {
        while (Avanza()) {
            if (!testo_.trimmed().isEmpty()) return true;
        }
        return false;
    }

    // Finds separator and columns by the first line; whether that is a place already.
    bool Riconosci() {
        for (const QChar separatore : {u'\t', u';', u','}) {
            separatore_ = separatore;
            SpezzaCelle celle(separatore);
            const QStringList campi = celle.Aggiungi(testo_) ? celle.Prendi() : testo_.split(separatore);
            const auto posto = DaIntestazione(campi);
            posto_ = posto.value_or(kSenzaIntestazione);
            if (posto) {
                if (posto_[kNome] < 0) Rifiuta(u"manca la colonna del nome"_s);
                return false;
            }
            if (campi.size() > kSenzaIntestazione[kNome] && LeggiPosizione(campi[1], campi[0])) return true;
        }
        NonRiconosciuto();
    }

    // Of the line, and of those that belong to it since a text in quotes goes on there.
    QStringList Campi() {
        SpezzaCelle celle(separatore_);
        while (!celle.Aggiungi(testo_)) {
            if (riga_ - inizio_ >= kMassimeRigheCampo || !righe_.Avanza()) Rifiuta(u"le virgolette non si chiudono"_s);
            ++riga_;
            if (righe_.TroppoLunga()) Rifiuta(u"è troppo lunga"_s);
            testo_ = righe_.Testo();
        }
        return celle.Prendi();
    }

    void Aggiungi(const QStringList& campi) {
        const auto testo = [&](ColonnaSosta colonna) { return SuUnaRiga(campi.value(posto_[colonna])); };
        if (campi.join(QString()).isEmpty()) return;
        const auto posizione = LeggiPosizione(testo(kLatitudine), testo(kLongitudine));
        if (!posizione) {
            Rifiuta(u"latitudine «%1» e longitudine «%2» non sono una posizione"_s.arg(
                Accorciato(testo(kLatitudine), kMassimoMostrato), Accorciato(testo(kLongitudine), kMassimoMostrato)));
        }
        if (soste_.size() == kMassimeSoste) {
            Rifiuta(u"un elenco ha al massimo %1 soste"_s.arg(Raggruppa(static_cast<std::int64_t>(kMassimeSoste))));
        }
        QStringList note = {testo(kDescrizione), testo(kNote)};
        note.removeAll(QString());
        note.removeDuplicates();
        soste_.push_back({testo(kNome), testo(kTipo), note.join(u", "_s), *posizione});
    }

    [[noreturn]] void Rifiuta(const QString& perche) const {
        throw Failure(u"Il file %1 non si può importare. Riga %2: %3."_s.arg(nome_, Raggruppa(inizio_), perche));
    }
    [[noreturn]] void NonRiconosciuto() const {
        throw Failure(
            u"Il file %1 non è un elenco di soste che Cronovia riconosca: una tabella (CSV) ha nella prima riga i nomi "
            "delle colonne, come nome;lat;lon, oppure in ogni riga longitudine, latitudine e nome."_s.arg(nome_));
    }

    RigheTesto righe_;
    QString nome_;
    QString testo_;
    int riga_ = 0;
    int inizio_ = 0;  // the line where the one that is being read began
    QChar separatore_;
    PostoColonne posto_{};
    std::vector<SostaLetta> soste_;
};

}  // namespace

std::vector<SostaLetta> LeggiTabellaSoste(QIODevice& device, const QString& path) {
    return LettoreTabella(device, path).Leggi();
}

// The points by themselves; where a file has none, those of its route.
std::vector<SostaLetta> LeggiSoste(const QString& path) {
    const auto file = LeggiNavigatore(path);
    if (!file) return LeggiTabellaSoste(*ApriInLettura(path), path);
    const std::vector<PuntoLetto>& punti = file->luoghi.empty() ? file->rotta : file->luoghi;
    const QString nome = QDir::toNativeSeparators(path);
    if (punti.empty()) throw Failure(u"Nel file %1 non c'è nessun luogo."_s.arg(nome));
    if (punti.size() > kMassimeSoste) {
        throw Failure(u"Il file %1 ha più di %2 soste: si importano al massimo tante."_s.arg(
            nome, Raggruppa(static_cast<std::int64_t>(kMassimeSoste))));
    }
    std::vector<SostaLetta> soste;
    soste.reserve(punti.size());
    for (const PuntoLetto& punto : punti) {
        soste.push_back({punto.nome, punto.tipo, SenzaMarche(punto.note), punto.posizione});
    }
    return soste;
}

}  // namespace cronovia
