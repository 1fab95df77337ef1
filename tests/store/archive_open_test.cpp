// SPDX-License-Identifier: GPL-3.0-or-later
// Opening a data folder: what is made, what is mended, what is refused and left alone.
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QStringList>
#include <memory>

#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

void Esegui(const QString& percorso, const char* sql) {
    SQLite::Database database(percorso.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec(sql);
}

// The first column of a query, through a connection of its own.
QStringList Elenco(const QString& percorso, const char* sql) {
    const SQLite::Database database(percorso.toStdString());
    SQLite::Statement statement(database, sql);
    QStringList elenco;
    while (statement.executeStep()) elenco += QString::fromStdString(statement.getColumn(0).getString());
    return elenco;
}

QStringList Campi(const QString& percorso, const char* tabella) {
    return Elenco(percorso,
                  (std::string("SELECT name || ' ' || type FROM pragma_table_info('") + tabella + "')").c_str());
}

constexpr auto* kIndici =
    "SELECT m.name || ' ' || i.name FROM sqlite_master m, pragma_index_list(m.name) l, pragma_index_info(l.name) i "
    "WHERE m.type = 'table' ORDER BY m.rowid, i.cid";

const QStringList kAttesi = {u"MeteVandro CodiceMeta"_s, u"MeteVandro Localita"_s,      u"Itinerari CodiceMeta"_s,
                             u"Itinerari Sequenza"_s,    u"Itinerari Localita"_s,       u"GuidaCitta Localita"_s,
                             u"TipoGuida CodiceGuida"_s, u"MetaCorrente MetaCorrente"_s};

class ArchiveOpen : public ::testing::Test {
  protected:
    // An archive with one trip and two guide entries, closed again.
    void CreaArchivio() {
        Archive archive = Archive::Open(cartella_.Path());
        std::vector<QString> meta(mete::kCampi);
        meta[mete::CodiceMeta] = u"000007"_s;
        archive.Insert(Table::MeteVandro, meta);
        for (const QString& localita : {u"Alba"_s, u"L'Aquila"_s}) {
            prova::NellaGuida(archive, localita, u"01"_s, u"Fontana"_s, u"01:30"_s);
        }
    }
    void Apri() { Archive::Open(cartella_.Path()); }
    QString Copia() { return cartella_.Path() + u"/VandroCronovia-copia1.mdb"_s; }
    void AttendiDati(const QString& flagVisto = u"0"_s) {
        Archive archive = Archive::Open(cartella_.Path());
        EXPECT_EQ(archive.SelectFirst({Table::MeteVandro, {}}).value()[mete::CodiceMeta], u"000007"_s);
        EXPECT_EQ(archive.Count(Table::GuidaCitta), 2);
        const auto aquila = archive.SelectFirst({Table::GuidaCitta, {{guida::Localita, NamePattern(u"l?AQUILA")}}});
        ASSERT_TRUE(aquila.has_value());
        EXPECT_EQ(aquila->values, (std::vector<QString>{u"L'Aquila"_s, u"01"_s, u"Fontana"_s, u"01:30"_s, flagVisto}));
    }
    // Opening must fail with a message that holds `parola` and leave the folder as it was.
    void AttendiRifiuto(const QString& parola) {
        const QByteArray prima = prova::LeggiFile(cartella_.Archivio());
        const QStringList contenuto = cartella_.Contenuto();
        const QString messaggio = prova::MessaggioDi([this] { Apri(); });
        EXPECT_TRUE(messaggio.startsWith(u"Errore apertura database "_s)) << messaggio.toStdString();
        EXPECT_TRUE(messaggio.contains(parola)) << messaggio.toStdString();
        EXPECT_EQ(cartella_.Contenuto(), contenuto);
        EXPECT_EQ(prova::LeggiFile(cartella_.Archivio()), prima);
    }

    prova::CartellaDiProva cartella_;
};

TEST_F(ArchiveOpen, AnArchiveInOrderIsNotWritten) {
    CreaArchivio();
    const QByteArray prima = prova::LeggiFile(cartella_.Archivio());
    AttendiDati();
    EXPECT_EQ(prova::LeggiFile(cartella_.Archivio()), prima);
    EXPECT_EQ(cartella_.Contenuto(), QStringList{u"VandroCronovia.mdb"_s});
}

struct Guasto {
    const char* sql;
    QString flagVisto = u"0"_s;  // that the guide entries have afterwards
};

void PrintTo(const Guasto& guasto, std::ostream* uscita) { *uscita << guasto.sql; }

class GuastoTest : public ArchiveOpen, public ::testing::WithParamInterface<Guasto> {};

TEST_P(GuastoTest, IsMendedAndACopyKept) {
    CreaArchivio();
    const QString file = cartella_.Archivio();
    const QStringList campi = Campi(file, "GuidaCitta");
    Esegui(file, GetParam().sql);
    constexpr auto* kSchema = "SELECT sql FROM sqlite_master ORDER BY name";
    const QStringList schema = Elenco(file, kSchema);

    AttendiDati(GetParam().flagVisto);
    QStringList indici = Elenco(file, kIndici);
    QStringList indiciAttesi = kAttesi;
    indici.sort();
    indiciAttesi.sort();
    EXPECT_EQ(indici, indiciAttesi);
    EXPECT_EQ(Campi(file, "GuidaCitta"), campi);
    EXPECT_EQ(cartella_.Contenuto(), (QStringList{u"VandroCronovia-copia1.mdb"_s, u"VandroCronovia.mdb"_s}));
    EXPECT_EQ(Elenco(Copia(), kSchema), schema);
    EXPECT_EQ(Elenco(Copia(), "SELECT Localita FROM GuidaCitta"), (QStringList{u"Alba"_s, u"L'Aquila"_s}));

    // By this an earlier release knows that the file is beyond it.
    EXPECT_EQ(Elenco(file, "PRAGMA user_version"), QStringList{QString::number(kSchemaVersion)});

    const QByteArray dopo = prova::LeggiFile(file);
    Apri();
    EXPECT_EQ(prova::LeggiFile(file), dopo);  // mended once and for all
}

INSTANTIATE_TEST_SUITE_P(
    Archive, GuastoTest,
    ::testing::Values(
        Guasto{"DROP TABLE Itinerari; DROP TABLE TipoGuida; PRAGMA user_version = 0; PRAGMA application_id = 0"},
        Guasto{"DROP INDEX GuidaCitta_Localita; CREATE INDEX GuidaCitta_Localita ON GuidaCitta (Descrizione)"},
        Guasto{"DROP INDEX Itinerari_Localita; CREATE INDEX Itinerari_Localita ON Itinerari (Localita COLLATE BINARY)"},
        Guasto{"ALTER TABLE GuidaCitta DROP COLUMN FlagVisto", u""_s},
        Guasto{"ALTER TABLE GuidaCitta RENAME COLUMN Descrizione TO DESCRIZIONE"},
        // other widths, of which every value fits, in another order
        Guasto{"CREATE TABLE g (FlagVisto TEXT(1), CodiceGuida TEXT(8), Descrizione TEXT(200), TempoSosta VARCHAR, "
               "Localita TEXT(20)); INSERT INTO g SELECT FlagVisto, CodiceGuida, Descrizione, TempoSosta, Localita "
               "FROM GuidaCitta; DROP TABLE GuidaCitta; ALTER TABLE g RENAME TO GuidaCitta"}));

TEST_F(ArchiveOpen, FieldsOfSomebodyElseAndOlderCopiesStay) {
    CreaArchivio();
    prova::ScriviFile(Copia(), "di prima");
    Esegui(cartella_.Archivio(),
           "ALTER TABLE GuidaCitta ADD COLUMN Voto TEXT; ALTER TABLE GuidaCitta ADD COLUMN Foto BLOB; "
           "UPDATE GuidaCitta SET Voto = 'ottimo', Foto = x'00ff' WHERE Localita = 'Alba'; "
           "ALTER TABLE GuidaCitta DROP COLUMN FlagVisto");
    AttendiDati(u""_s);
    EXPECT_EQ(Elenco(cartella_.Archivio(), "SELECT quote(Voto) || quote(Foto) FROM GuidaCitta"),
              (QStringList{u"'ottimo'X'00FF'"_s, u"NULLNULL"_s}));
    EXPECT_EQ(prova::LeggiFile(Copia()), QByteArray("di prima"));
    EXPECT_TRUE(cartella_.Contenuto().contains(u"VandroCronovia-copia2.mdb"_s));
}

TEST_F(ArchiveOpen, DatabasesThatCannotBeMendedAreRefused) {
    for (const auto& [sql, parola] :
         {std::pair{"DROP TABLE Parametri; PRAGMA user_version = 99", u"versione più recente"_s},
          {"CREATE TABLE g (Localita TEXT(40)); INSERT INTO g VALUES ('1234567890123456789012345678901'); "
           "DROP TABLE GuidaCitta; ALTER TABLE g RENAME TO GuidaCitta; DROP TABLE Itinerari",
           u"per certi testi della guida c'è posto per 30 caratteri, ma 1 di loro"_s}}) {
        QFile::remove(cartella_.Archivio());
        CreaArchivio();
        Esegui(cartella_.Archivio(), sql);
        AttendiRifiuto(parola);
    }
    for (const char* sql : {"CREATE TABLE clienti (nome TEXT)", "CREATE TABLE MeteVandro (CodiceMeta TEXT, voto INT)",
                            "CREATE TABLE Parametri (chiave TEXT, valore TEXT); PRAGMA application_id = 1447260790"}) {
        QFile::remove(cartella_.Archivio());
        Esegui(cartella_.Archivio(), sql);
        AttendiRifiuto(u"altro programma"_s);
    }
    for (const char* sql :
         {"CREATE VIEW v AS SELECT 1", "CREATE TRIGGER t AFTER INSERT ON Parametri BEGIN SELECT 1; END",
          "ALTER TABLE Parametri RENAME TO p; CREATE VIEW Parametri AS SELECT * FROM p"}) {
        QFile::remove(cartella_.Archivio());
        CreaArchivio();
        Esegui(cartella_.Archivio(), sql);
        AttendiRifiuto(u""_s);
    }
}

TEST_F(ArchiveOpen, NothingIsMendedWithoutACopy) {
    CreaArchivio();
    Esegui(cartella_.Archivio(), "DROP TABLE Parametri");
    prova::ConDiscoPieno(8192, [this] { AttendiRifiuto(u"sul disco"_s); });
}

// Locks each copy as soon as it is begun, as another program may.
class BloccaCopie {
  public:
    BloccaCopie() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Blocca)); }
    ~BloccaCopie() {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Blocca));
        altro.reset();
    }
    BloccaCopie(const BloccaCopie&) = delete;
    BloccaCopie& operator=(const BloccaCopie&) = delete;

  private:
    static int Blocca(sqlite3* database, char** /*errore*/, const sqlite3_api_routines* /*api*/) {
        const std::string path = sqlite3_db_filename(database, "main");
        if (!path.ends_with(".parziale") || std::exchange(apre, true)) return 0;
        altro = std::make_unique<SQLite::Database>(path, SQLite::OPEN_READWRITE);
        altro->exec("BEGIN EXCLUSIVE");
        apre = false;
        return 0;
    }
    static inline std::unique_ptr<SQLite::Database> altro;
    static inline bool apre = false;
};

TEST_F(ArchiveOpen, NothingIsMendedWhenTheCopyIsNotWhole) {
    CreaArchivio();
    Esegui(cartella_.Archivio(), "DROP TABLE Parametri");
    {
        const BloccaCopie blocca;
        EXPECT_TRUE(prova::MessaggioDi([this] { Apri(); }).contains(u"in uso da un altro programma"_s));
    }
    EXPECT_EQ(cartella_.Contenuto(), QStringList{u"VandroCronovia.mdb"_s});
    AttendiDati();
    EXPECT_EQ(Elenco(Copia(), "SELECT Localita FROM GuidaCitta"), (QStringList{u"Alba"_s, u"L'Aquila"_s}));
}

TEST_F(ArchiveOpen, OtherFilesOrAFolderUnderTheNameAreRefused) {
    CreaArchivio();
    const QByteArray archivio = prova::LeggiFile(cartella_.Archivio());
    for (const auto& [byte, parola] :
         {std::pair{QByteArray("\x00\x01\x00\x00Standard Jet DB\x00\x01", 21), u"archivio Jet"_s},
          {QByteArray(), u"il file è vuoto"_s},
          {QByteArray("caro diario"), u"non è un archivio di Cronovia"_s},
          {QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x'), u"non è un archivio di Cronovia"_s},
          {archivio.left(archivio.size() / 2), u"danneggiato"_s}}) {
        prova::ScriviFile(cartella_.Archivio(), byte);
        AttendiRifiuto(parola);
    }
    QFile::remove(cartella_.Archivio());
    ASSERT_TRUE(QDir().mkpath(cartella_.Archivio()));
    EXPECT_TRUE(prova::MessaggioDi([this] { Apri(); }).contains(u"al suo posto c'è una cartella"_s));
    EXPECT_TRUE(QDir(cartella_.Archivio()).isEmpty());
    ASSERT_TRUE(QDir().rmdir(cartella_.Archivio()));
    for (const char* coda : {"", "-journal"}) {  // which nobody writes to
        const std::string tubo = cartella_.Archivio().toStdString() + coda;
        ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
        EXPECT_TRUE(prova::MessaggioDi([this] { Apri(); }).endsWith(u"non è un file."_s));
        std::remove(tubo.c_str());
    }
}

TEST_F(ArchiveOpen, AnArchiveLockedByAnotherProgramIsRefused) {
    CreaArchivio();
    SQLite::Database altro(cartella_.Archivio().toStdString(), SQLite::OPEN_READWRITE);
    altro.exec("BEGIN EXCLUSIVE");
    AttendiRifiuto(u"in uso da un altro programma"_s);
    altro.exec("ROLLBACK; BEGIN IMMEDIATE");
    Archive archive = Archive::Open(cartella_.Path());  // reading goes on beside a writer
    EXPECT_EQ(archive.Count(Table::GuidaCitta), 2);
    const QString messaggio = prova::MessaggioDi([&] { archive.Delete(Table::GuidaCitta, 1); });
    EXPECT_TRUE(messaggio.contains(u"in uso da un altro programma"_s)) << messaggio.toStdString();
}

}  // namespace
}  // namespace cronovia
