// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/soste/lettore_soste.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <array>
#include <optional>
#include <tuple>

#include "calendar/testo.h"
#include "exchange/lettore_navigatore.h"
#include "files/celle.h"
#include "files/lettore_righe.h"
#include "files/righe_testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimeRigheCampo = 100;
constexpr qsizetype kMassimoMostrato = 40;
constexpr qsizetype kMinimeColonne = 3;
constexpr std::array kSeparatori = {u'\t', u';', u','};

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

    /// The first line in its cells, and the next one, when the columns have to be told.
    std::optional<TabellaDaSpiegare> DaSpiegare() {
        if (!AvanzaPiena()) return std::nullopt;
        if (Riconosci()) return std::nullopt;
        TabellaDaSpiegare tabella;
        tabella.intestazione = InPiuCelle();
        if (tabella.intestazione.size() < kMinimeColonne) return std::nullopt;
        if (AvanzaPiena()) tabella.esempio = Campi();
        tabella.proposte = ColonneDette(tabella.intestazione);
        const PostoColonne indovinate = ColonneIndovinate(tabella.esempio);
        for (const ColonnaSosta colonna : {kNome, kLatitudine, kLongitudine}) {
            if (tabella.proposte[colonna] < 0) tabella.proposte[colonna] = indovinate[colonna];
        }
        return tabella;
    }

    QStringList PrimeCelle() {
        if (!AvanzaPiena()) NonRiconosciuto();
        return InPiuCelle();
    }

    /// As the person told the columns; the first line is a place, or names.
    std::vector<SostaLetta> Leggi(const PostoColonne& colonne) {
        if (!AvanzaPiena()) NonRiconosciuto();
        std::ignore = InPiuCelle();
        posto_ = colonne;
        const QStringList prima = Campi();
        if (LeggiPosizione(prima.value(posto_[kLatitudine]), prima.value(posto_[kLongitudine]))) Aggiungi(prima);
        while (AvanzaPiena()) Aggiungi(Campi());
        return std::move(soste_);
    }

    std::vector<SostaLetta> Leggi() {
        if (!AvanzaPiena()) NonRiconosciuto();
        const auto primaRiga = Riconosci();
        if (!primaRiga) NonRiconosciuto();
        bool altra = *primaRiga == PrimaRiga::Sosta || AvanzaPiena();
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

    enum class PrimaRiga { Nomi, Sosta };

    // Finds separator and columns by the first line; nothing when it does not tell them.
    std::optional<PrimaRiga> Riconosci() {
        for (const QChar separatore : kSeparatori) {
            separatore_ = separatore;
            const QStringList celle = Celle(separatore);
            posto_ = ColonneDette(celle);
            if (Bastano(posto_)) return PrimaRiga::Nomi;
            posto_ = kSenzaIntestazione;
            if (celle.size() > posto_[kNome] && LeggiPosizione(celle[1], celle[0])) return PrimaRiga::Sosta;
        }
        return std::nullopt;
    }

    // The cells of the first line by the separator that makes most of them.
    QStringList InPiuCelle() {
        QStringList piu;
        for (const QChar separatore : kSeparatori) {
            const QStringList celle = Celle(separatore);
            if (celle.size() <= piu.size()) continue;
            piu = celle;
            separatore_ = separatore;
        }
        return piu;
    }

    [[nodiscard]] QStringList Celle(QChar separatore) const {
        SpezzaCelle celle(separatore);
        return celle.Aggiungi(testo_) ? celle.Prendi() : testo_.split(separatore);
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
            "delle colonne, come nome;lat;lon, oppure in ogni riga longitudine, latitudine e nome. Altri nomi si "
            "possono spiegare nella finestra, o con --colonne."_s.arg(nome_));
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

// The points by themselves; where a file has none, those of its route.
std::vector<SostaLetta> SosteDi(const FileNavigatore& file, const QString& path) {
    const std::vector<PuntoLetto>& punti = file.luoghi.empty() ? file.rotta : file.luoghi;
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

}  // namespace

std::vector<SostaLetta> LeggiTabellaSoste(QIODevice& device, const QString& path,
                                          const std::optional<PostoColonne>& colonne) {
    LettoreTabella lettore(device, path);
    return colonne ? lettore.Leggi(*colonne) : lettore.Leggi();
}

QStringList PrimaRigaSoste(const QString& path) { return LettoreTabella(*ApriInLettura(path), path).PrimeCelle(); }

std::vector<SostaLetta> LeggiSoste(const QString& path, const std::optional<PostoColonne>& colonne) {
    if (colonne) return LeggiTabellaSoste(*ApriInLettura(path), path, colonne);
    const auto file = LeggiNavigatore(path);
    return file ? SosteDi(*file, path) : LeggiTabellaSoste(*ApriInLettura(path), path);
}

std::variant<std::vector<SostaLetta>, TabellaDaSpiegare> LeggiOChiediSoste(const QString& path) {
    if (const auto file = LeggiNavigatore(path)) return SosteDi(*file, path);
    if (auto tabella = LettoreTabella(*ApriInLettura(path), path).DaSpiegare()) return *std::move(tabella);
    return LeggiTabellaSoste(*ApriInLettura(path), path);
}

}  // namespace cronovia
