// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever reads sees one moment of the archive, though another program writes between any two of its readings.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

#include "app/appunti_cronovia.h"
#include "app/documento.h"
#include "cli/verbi.h"
#include "exchange/iei/importa_mete.h"
#include "programma.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Changes all that is read with a trip: where a reader mixes before and after, it tells what never was.
void Cambia(Archive& archivio, double latitudine, const QString& tempo) {
    Transaction transaction(archivio);
    Record meta = *archivio.SelectFirst({Table::MeteVandro, {}});
    meta[mete::Localita] += u"X"_s;
    meta[mete::OraInizio] = tempo;
    archivio.Update(Table::MeteVandro, meta);
    for (Record riga : archivio.Select({Table::Itinerari, {}})) {
        ConfermaPosizione(archivio, riga[itinerari::Localita], {latitudine, static_cast<double>(riga.id) * 0.1});
        riga[itinerari::NomeStrada] = tempo;
        archivio.Update(Table::Itinerari, riga);
    }
    for (Record voce : archivio.Select({Table::GuidaCitta, {}})) {
        voce[guida::TempoSosta] = tempo.left(2) + u':' + tempo.right(2);
        archivio.Update(Table::GuidaCitta, voce);
    }
    for (Record tipo : archivio.Select({Table::TipoGuida, {}})) {
        tipo[tipoguida::Descrizione] = tipo[tipoguida::Descrizione].left(20) + tempo;
        archivio.Update(Table::TipoGuida, tipo);
    }
    transaction.Commit();
}

// The other program: it writes at one of the occasions that a reader leaves, counted from 0. An occasion is a statement
// that begins while nothing that was begun keeps others from writing.
class Intruso {
  public:
    explicit Intruso(QString cartella) : cartella_(std::move(cartella)) {
        attivo = this;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Ascolta));
    }
    ~Intruso() {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Ascolta));
        attivo = nullptr;
    }
    Intruso(const Intruso&) = delete;
    Intruso& operator=(const Intruso&) = delete;

    void Attende(int occasione) { manca_ = occasione; }
    [[nodiscard]] bool Attende() const { return manca_ >= 0; }

  private:
    static int Ascolta(sqlite3* database, char** /*errore*/, const sqlite3_api_routines* /*api*/) {
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, &Comincia, nullptr);
    }
    static int Comincia(unsigned /*evento*/, void* /*contesto*/, void* statement, void* /*testo*/) {
        auto* const suo = static_cast<sqlite3_stmt*>(statement);
        sqlite3* const database = sqlite3_db_handle(suo);
        bool libero = attivo != nullptr && sqlite3_get_autocommit(database) != 0;
        for (sqlite3_stmt* uno = nullptr; (uno = sqlite3_next_stmt(database, uno)) != nullptr;) {
            libero = libero && (uno == suo || sqlite3_stmt_busy(uno) == 0);
        }
        if (libero && attivo->manca_ >= 0 && --attivo->manca_ < 0) attivo->Scrive();
        return 0;
    }
    void Scrive() const try {
        Archive archivio = Archive::Open(cartella_);
        Cambia(archivio, 60, u"0745"_s);
    } catch (const Failure& failure) {
        ADD_FAILURE() << failure.what();
    }

    static inline Intruso* attivo = nullptr;
    QString cartella_;
    int manca_ = -1;
};

class Momenti : public testing::Test {
  protected:
    Momenti() {
        Sessione sessione(cartella_.Path());
        ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"), {}}, progress_);
        Cambia(sessione.Archivio(), 44, u"0615"_s);
    }

    // What a verb answers about the trip, with what it puts into its file or folder.
    QString Risponde(int occasione, const QString& verbo, const QStringList& argomenti, const QStringList& opzioni,
                     Formato formato = Formato::Json) {
        QString risposta;
        QTextStream uscita(&risposta);
        Richiesta richiesta{argomenti, {}, formato, {}, {}, &progress_, {}};
        for (const QString& opzione : opzioni)
            richiesta.opzioni[opzione.section(u'=', 0, 0)] = opzione.section(u'=', 1);
        const auto apri = [&] {
            Sessione sessione(cartella_.Path());
            intruso_.Attende(occasione);
            return sessione;
        };
        std::ranges::find(Verbi(), verbo, &Verbo::nome)->esegui(apri, richiesta, uscita);
        uscita.flush();
        for (const QFileInfo& file : QDir(uscite_.path()).entryInfoList(QDir::Files, QDir::Name)) {
            risposta += QString::fromUtf8(prova::LeggiFile(file.filePath()));
            QFile::remove(file.filePath());
        }
        return risposta.remove(QRegularExpression(u"DTSTAMP:.*"_s));
    }
    QString Esporta(int occasione, const QStringList& opzioni) {
        const QString path = opzioni.contains(u"per-giorno"_s) ? uscite_.path() : uscite_.filePath(u"viaggio"_s);
        return Risponde(occasione, u"esporta"_s, {path, u"3"_s}, opzioni);
    }

    // What the window reads when its trip has long been open.
    QString Documenta(int occasione, const std::function<void(Documento&, QString&)>& legge) {
        Sessione sessione(cartella_.Path());
        Documento documento(sessione);
        documento.Apri(u"000003"_s);
        intruso_.Attende(occasione);
        QString risposta;
        legge(documento, risposta);
        if (const Cronovia* cronovia = documento.Ultima()) {
            std::vector<int> righe(cronovia->righe.size());
            std::iota(righe.begin(), righe.end(), 0);
            risposta += TestoDelleRighe(*cronovia, righe);
        }
        return risposta;
    }

    prova::ProgrammaQui programma_;
    prova::CartellaDiProva cartella_;
    QTemporaryDir uscite_;
    Progress progress_;
    Intruso intruso_{cartella_.Path()};
};

TEST_F(Momenti, AreOneForWhoeverReads) {
    using Lettore = std::function<QString(int occasione)>;
    const auto verbo = [this](const QString& nome) {
        return [=, this](int o) { return Risponde(o, nome, {u"3"_s}, {}); };
    };
    const auto esporta = [this](const QStringList& opzioni) {
        return [=, this](int o) { return Esporta(o, opzioni); };
    };
    const auto documenta = [this](const std::function<void(Documento&, QString&)>& legge) {
        return [=, this](int o) { return Documenta(o, legge); };
    };
    const std::vector<std::pair<const char*, Lettore>> lettori = {
        {"itinerario", verbo(u"itinerario"_s)},
        {"calcola", verbo(u"calcola"_s)},
        {"confronta", verbo(u"confronta"_s)},
        {"giornate", verbo(u"giornate"_s)},
        {"luoghi", [this](int o) { return Risponde(o, u"luoghi"_s, {u"3"_s}, {}, Formato::Testo); }},
        {"guida", [this](int o) { return Risponde(o, u"guida"_s, {}, {u"meta=3"_s}, Formato::Testo); }},
        {"iei", esporta({})},
        {"html", esporta({u"html"_s})},
        {"ics", esporta({u"ics"_s})},
        {"gpx", esporta({u"gpx"_s})},
        {"kml by day", esporta({u"kml"_s, u"per-giorno"_s})},
        {"comparison", documenta([this](Documento& documento, QString& risposta) {
             const auto alternative = documento.Confronta(progress_);
             for (const Alternativa& a : *alternative) risposta += TestiAlternativa(a).join(u'\t');
         })},
        {"computation", documenta([this](Documento& documento, QString&) { documento.Calcola(progress_); })},
        {"live", documenta([](Documento& documento, QString&) { documento.CalcolaDalVivo(); })},
    };
    const QByteArray archivio = prova::LeggiFile(cartella_.Archivio());
    for (const auto& [nome, lettore] : lettori) {
        SCOPED_TRACE(nome);
        const auto legge = [&](int occasione) {
            prova::ScriviFile(cartella_.Archivio(), archivio);
            return lettore(occasione);
        };
        const QString prima = legge(-1);
        const QString dopo = legge(0);
        EXPECT_FALSE(intruso_.Attende());
        EXPECT_NE(prima, dopo);
        for (int occasione = 1; !intruso_.Attende(); ++occasione) {
            const QString risposta = legge(occasione);
            EXPECT_TRUE(risposta == prima || risposta == dopo) << "a mix, written at " << occasione;
            ASSERT_LT(occasione, 500);
        }
        intruso_.Attende(-1);
    }
}

}  // namespace
}  // namespace cronovia
