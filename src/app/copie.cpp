// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/copie.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <map>

#include "app/impostazioni.h"
#include "calendar/testo.h"
#include "interaction/failure.h"
#include "store/archive.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kNomiMostrati = 8;

std::optional<std::int64_t> Righe(const std::vector<std::optional<std::int64_t>>& tabelle, Table tabella) {
    return tabelle.at(static_cast<std::size_t>(tabella) - 1);
}

CopiaInElenco ConContenuto(ArchiveCopy copia) {
    CopiaInElenco inElenco{std::move(copia), 0, {}, {}};
    inElenco.byte = QFileInfo(inElenco.copia.path).size();
    try {
        const auto tabelle = RowsIn(inElenco.copia.path);
        inElenco.mete = Righe(tabelle, Table::MeteVandro);
        inElenco.tappe = Righe(tabelle, Table::Itinerari);
    } catch (const Failure&) {
        // it stays in the list, as one that cannot be read
    }
    return inElenco;
}

// A trip in short: its name, and a mark that is another one when anything about it is.
struct InBreve {
    QString nome;
    std::size_t segno = 0;
};

std::size_t Segno(const Record& record) { return qHashRange(record.values.begin(), record.values.end()); }

// What an archive holds, in short; its stages in whichever order they are stored.
struct Contenuto {
    std::map<QString, InBreve> mete;  // by their codes
    std::int64_t voci = 0;            // of the guide
    std::size_t guida = 0;
};

Contenuto ContenutoDi(Archive& archivio) {
    Contenuto contenuto;
    const ReadSnapshot momento(archivio);
    archivio.ForEach(Table::MeteVandro, [&](const Record& record) {
        InBreve& meta = contenuto.mete[record[mete::CodiceMeta]];
        meta.nome = record[mete::Localita].trimmed();
        meta.segno += Segno(record);
    });
    std::vector<Table> delleMete = TripTablesOnDemand();
    delleMete.push_back(Table::Itinerari);
    for (const Table tabella : delleMete) {
        archivio.ForEach(tabella, [&contenuto](const Record& record) {
            const auto meta = contenuto.mete.find(record[itinerari::CodiceMeta]);
            if (meta != contenuto.mete.end()) meta->second.segno += Segno(record);
        });
    }
    archivio.ForEach(Table::GuidaCitta, [&](const Record& record) {
        ++contenuto.voci;
        contenuto.guida += Segno(record);
    });
    return contenuto;
}

QString RigaDiNomi(const QString& che, const QStringList& nomi) {
    if (nomi.isEmpty()) return {};
    QString riga = u"%1: %2"_s.arg(che, QStringList(nomi.mid(0, kNomiMostrati)).join(u", "_s));
    const qsizetype resto = nomi.size() - kNomiMostrati;
    if (resto > 0) riga += resto == 1 ? u" e un'altra"_s : u" e altre %1"_s.arg(Raggruppa(resto));
    return riga + u".\n"_s;
}

QString Differenze(const Contenuto& adesso, const Contenuto& copia) {
    QStringList tornano;
    QStringList spariscono;
    QStringList cambiano;
    for (const auto& [codice, meta] : copia.mete) {
        const auto presente = adesso.mete.find(codice);
        if (presente == adesso.mete.end()) {
            tornano += meta.nome;
        } else if (presente->second.segno != meta.segno) {
            cambiano += meta.nome;
        }
    }
    for (const auto& [codice, meta] : adesso.mete) {
        if (!copia.mete.contains(codice)) spariscono += meta.nome;
    }
    QString testo = RigaDiNomi(u"Mète che tornano"_s, tornano) + RigaDiNomi(u"Mète che spariscono"_s, spariscono) +
                    RigaDiNomi(u"Mète che tornano com'erano"_s, cambiano);
    if (adesso.guida != copia.guida || adesso.voci != copia.voci) {
        testo += u"Annotazioni della guida: adesso %1, nella copia %2%3.\n"_s.arg(
            Raggruppa(adesso.voci), Raggruppa(copia.voci), adesso.voci == copia.voci ? u", non uguali"_s : QString());
    }
    return testo.isEmpty() ? u"Le mète e la guida sono le stesse di adesso.\n"_s : testo;
}

Archive Presente(const QString& cartella) { return Archive::OpenCopy(Archive::FilePath(cartella)); }

}  // namespace

QString CopiaInElenco::Perche() const { return copia.reason.isEmpty() ? u"ogni giorno"_s : copia.reason; }

std::vector<CopiaInElenco> ElencoCopie(const QString& cartella) {
    std::vector<CopiaInElenco> elenco;
    const std::vector<ArchiveCopy> copie = CopiesOf(cartella);
    std::transform(copie.begin(), copie.end(), std::back_inserter(elenco), &ConContenuto);
    return elenco;
}

QString TrovaCopia(const QString& cartella, const QString& chiamata) {
    const std::vector<ArchiveCopy> copie = CopiesOf(cartella);
    bool numero = false;
    const auto posto = chiamata.toULongLong(&numero);
    if (numero && posto >= 1 && posto <= copie.size()) return copie[posto - 1].path;
    for (const ArchiveCopy& copia : copie) {
        const QFileInfo file(copia.path);
        if (chiamata == file.fileName() || chiamata == file.completeBaseName()) return copia.path;
    }
    if (QFileInfo(chiamata).isFile()) return chiamata;
    throw Failure(u"La copia «%1» non c'è: quelle che ci sono le elenca «cronovia copie»."_s.arg(chiamata));
}

QString CosaCambierebbe(const QString& cartella, const QString& copia) {
    RefuseBadCopy(copia);
    try {
        Archive archivioCopia = Archive::OpenCopy(copia);
        const Contenuto contenuto = ContenutoDi(archivioCopia);
        try {
            Archive presente = Presente(cartella);
            return Differenze(ContenutoDi(presente), contenuto);
        } catch (const Failure&) {
            return u"L'archivio di adesso non si può leggere. "_s + RigaDiNomi(u"Mète della copia"_s, [&] {
                       QStringList nomi;
                       for (const auto& [codice, meta] : contenuto.mete) nomi += meta.nome;
                       return nomi;
                   }());
        }
    } catch (const Failure& failure) {
        return failure.Message() + u" Che cosa cambierebbe non si può dire.\n"_s;
    }
}

// The copies are thinned at the end: the one that is put back may be among those that go.
QString RipristinaCopia(const QString& cartella, const QString& copia, const QDateTime& adesso) {
    RefuseBadCopy(copia);
    QDir().mkpath(cartella);
    const QString archivio = Archive::FilePath(cartella);
    if (QFileInfo(archivio).isDir()) throw Failure(u"Al posto dell'archivio c'è una cartella: toglila prima."_s);
    QString diPrima = KeepPresent(cartella, adesso, u"prima di ripristinare"_s);
    ReplaceContents(archivio, copia);
    ThinCopies(cartella, adesso.date(), LeggiImpostazioni(cartella).copie);
    return diPrima;
}

QString TestoRipristinata(const QString& copia, const QString& diPrima) {
    QString testo = u"L'archivio è di nuovo quello della copia %1."_s.arg(QFileInfo(copia).completeBaseName());
    if (!diPrima.isEmpty()) {
        testo += u" Quello di prima è nel file %1."_s.arg(QDir::toNativeSeparators(diPrima));
    }
    return testo;
}

}  // namespace cronovia
