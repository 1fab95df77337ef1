// SPDX-License-Identifier: GPL-3.0-or-later
// Searching with patterns: complete in every case, and through the index where there is one to use.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <random>
#include <set>

#include "store/name_index.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Names and patterns out of few letters that are hard to compare: both cases, accents, letters with three forms,
// letters whose other case is an ASCII one, characters beyond the basic plane, wildcards.
class Generatore {
  public:
    QString Nome() {
        QString nome;
        for (int n = Numero(8); n > 0; --n) nome += Pezzo();
        return nome;
    }

    // A pattern that often matches: a name with some characters changed for wildcards or for their other case.
    QString Modello(const QString& nome) {
        QString modello;
        for (const QChar c : nome) {
            const QStringList scelte = {u"?"_s, u"*"_s, u"[!x]"_s, c, c, c.isUpper() ? c.toLower() : c.toUpper()};
            modello += scelte.at(Numero(6));
        }
        return Numero(3) == 0 ? modello + u'*' : modello;
    }

    int Numero(int limite) { return static_cast<int>(casuale_() % static_cast<unsigned>(limite)); }

  private:
    QString Pezzo() {
        static const QList<uint> pezzi = u"aAbBkK\u212AsSſàÀåÅ\u212BσςΣßẞiIİıµμǆǅ😀\uFFFD'[7 "_s.toUcs4();
        const char32_t carattere = pezzi.at(Numero(static_cast<int>(pezzi.size())));
        return QString::fromUcs4(&carattere, 1);
    }

    std::mt19937 casuale_{20040805};
};

std::set<std::int64_t> Id(const std::vector<Record>& records) {
    std::set<std::int64_t> id;
    for (const Record& record : records) id.insert(record.id);
    return id;
}

TEST(Search, FindsWhatThePatternMatchesInEveryRow) {
    const prova::CartellaDiProva cartella;
    Archive archive = Archive::Open(cartella.Path());
    Generatore generatore;
    std::vector<QString> nomi = {u""_s, u"SANT'ANNA"_s};
    while (nomi.size() < 300) nomi.push_back(generatore.Nome());
    Transaction transaction(archive);
    for (const QString& nome : nomi) prova::NellaGuida(archive, nome);
    transaction.Commit();
    std::vector<Record> tutti = archive.Select({Table::GuidaCitta, {}});
    ASSERT_EQ(tutti.size(), nomi.size());

    NameIndex indice(archive, Table::GuidaCitta, {guida::Localita});
    std::size_t trovati = 0;
    for (int giro = 0; giro < 1500; ++giro) {
        const QString testo = generatore.Modello(nomi.at(static_cast<std::size_t>(generatore.Numero(300))));
        const NamePattern modello = giro % 5 == 0 ? NamePattern::Exactly(testo) : NamePattern(testo);
        std::set<std::int64_t> attesi;
        for (const Record& record : tutti) {
            if (modello.Matches(record[guida::Localita])) attesi.insert(record.id);
        }
        const std::vector<Record> risultato = archive.Select({Table::GuidaCitta, {{guida::Localita, modello}}});
        ASSERT_EQ(Id(risultato), attesi) << testo.toStdString();
        ASSERT_EQ(risultato.size(), attesi.size()) << "a row came twice: " << testo.toStdString();
        const auto uno = indice.Find(modello);
        ASSERT_TRUE(uno ? attesi.contains(*uno) : attesi.empty()) << testo.toStdString();
        trovati += attesi.size();
    }
    EXPECT_GT(trovati, 2000U);  // the patterns are worth the name
}

// Counts, over all connections of the process, the rows that statements step through without an index.
class ContaRigheSenzaIndice {
  public:
    ContaRigheSenzaIndice() {
        righe = 0;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Ascolta));
    }
    ~ContaRigheSenzaIndice() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Ascolta)); }

    static int Preleva() { return std::exchange(righe, 0); }

  private:
    static int Ascolta(sqlite3* database, char** /*errore*/, const sqlite3_api_routines* /*api*/) {
        return sqlite3_trace_v2(database, SQLITE_TRACE_PROFILE, &Conta, nullptr);
    }
    static int Conta(unsigned /*evento*/, void* /*contesto*/, void* statement, void* /*durata*/) {
        righe += sqlite3_stmt_status(static_cast<sqlite3_stmt*>(statement), SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
        return 0;
    }
    static inline int righe = 0;
};

TEST(Search, ALiteralBeginningUsesTheIndex) {
    const prova::CartellaDiProva cartella;
    const ContaRigheSenzaIndice conta;
    Archive archive = Archive::Open(cartella.Path());
    Transaction transaction(archive);
    for (int i = 0; i < 1000; ++i) {
        prova::NellaGuida(archive, u"%1 %2"_s.arg(i % 2 == 0 ? u"Örebro"_s : u"Roma"_s).arg(i));
    }
    transaction.Commit();
    const auto cerca = [&](const QString& modello) {
        ContaRigheSenzaIndice::Preleva();
        const std::size_t trovati =
            archive.Select({Table::GuidaCitta, {{guida::Localita, NamePattern(modello)}}}).size();
        return std::pair(trovati, ContaRigheSenzaIndice::Preleva());
    };
    using Esito = std::pair<std::size_t, int>;
    EXPECT_EQ(cerca(u"ROMA 7"_s), Esito(1, 0));
    EXPECT_EQ(cerca(u"öREBRO 1[0-3]*"_s), Esito(2 + 20, 0));
    EXPECT_EQ(cerca(u"Ö*8"_s), Esito(100, 0));
    // The witness does see a search that reads everything.
    EXPECT_GE(cerca(u"?OMA 7"_s).second, 999);
}

}  // namespace
}  // namespace cronovia
