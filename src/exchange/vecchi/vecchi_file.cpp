// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/vecchi/vecchi_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "files/file_intero.h"
#include "files/lettore_righe.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kBloccoConfronto = 256 * 1024;

// The earlier release ran where names have no case: a file may have come from there as "VANDMETE.DAT".
QHash<QString, QString> NomiDei(const QString& cartella) {
    QHash<QString, QString> nomi;
    for (const QString& nome : QDir(cartella).entryList({u"vand*.dat"_s}, QDir::Files)) {
        nomi.insert(nome.toLower(), nome);
    }
    return nomi;
}

bool Uguali(QFile& a, QFile& b) {
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size()) return false;
    QByteArray blocco;
    do {
        blocco = a.read(kBloccoConfronto);
        if (blocco != b.read(kBloccoConfronto)) return false;
    } while (!blocco.isEmpty());
    return a.atEnd() && b.atEnd();
}

QString Numerato(const QString& nome, int numero) { return nome + u" (%1)"_s.arg(numero); }

}  // namespace

bool CiSonoVecchiFile(const QString& cartella) { return NomiDei(cartella).contains(NomeVecchieMete().toLower()); }

QString NomeVecchieMete() { return u"VandMete.dat"_s; }
QString NomeVecchiaGuida() { return u"VandGuid.dat"_s; }
QString NomeVecchieTappe(const QString& codiceMeta) { return u"vand"_s + codiceMeta.right(4) + u".dat"_s; }

VecchiFile::VecchiFile(const QString& cartella, const QDateTime& adesso)
    : cartella_(cartella), adesso_(adesso), nomi_(NomiDei(cartella)) {}

VecchiFile::~VecchiFile() {
    if (tenuti_ || copie_.isEmpty()) return;
    for (const QString& copia : fatte_) QFile::remove(copia);
    QDir().rmdir(copie_);
}

std::optional<QString> VecchiFile::Trova(const QString& nome) const {
    const auto trovato = nomi_.constFind(nome.toLower());
    if (trovato == nomi_.constEnd()) return std::nullopt;
    return QDir(cartella_).filePath(*trovato);
}

// Whether a folder that was left holds copies of other files under the names of those of now.
bool VecchiFile::TieneAltro(const QString& copie) const {
    return std::any_of(nomi_.begin(), nomi_.end(), [&](const QString& nome) {
        QFile file(QDir(cartella_).filePath(nome));
        QFile copia(QDir(copie).filePath(nome));
        return copia.exists() && !Uguali(file, copia);
    });
}

void VecchiFile::CreaCartella() {
    const QString nome = QDir(cartella_).filePath(u"Vecchi file in corso"_s);
    QString cartella = nome;
    for (int numero = 2; TieneAltro(cartella); ++numero) cartella = Numerato(nome, numero);
    if (!QDir().mkpath(cartella)) {
        throw Failure(
            u"La cartella %1 per le copie dei vecchi file non si può creare: niente è stato convertito."_s.arg(
                QDir::toNativeSeparators(cartella)));
    }
    copie_ = cartella;
}

void VecchiFile::Concludi() {
    if (copie_.isEmpty()) return;
    const QString nome =
        NomeLibero(QDir(cartella_).filePath(u"Vecchi file "_s + adesso_.toString(u"yyyy-MM-dd HH.mm.ss"_s)));
    if (QDir().rename(copie_, nome)) copie_ = nome;
}

// With a number before what comes behind the name, when there is such a file already.
QString VecchiFile::NomeLibero(const QString& nome, const QString& dopo) {
    QString libero = nome + dopo;
    for (int numero = 2; QFileInfo::exists(libero); ++numero) libero = Numerato(nome, numero) + dopo;
    return libero;
}

QString VecchiFile::PostoPerDatabase(const QString& nome) {
    if (copie_.isEmpty()) CreaCartella();
    const QFileInfo file(nome);
    fatte_ += NomeLibero(QDir(copie_).filePath(file.completeBaseName()), u'.' + file.suffix());
    return fatte_.back();
}

QString VecchiFile::FileDellaCopia(const QString& path) const {
    return QDir(copie_).filePath(QFileInfo(path).fileName());
}

QString VecchiFile::Copia(const QString& path) {
    const std::unique_ptr<QFile> file = ApriInLettura(path);
    if (copie_.isEmpty()) CreaCartella();
    FileIntero copia(FileDellaCopia(path));
    while (!file->atEnd()) {
        const QByteArray blocco = file->read(kBloccoConfronto);
        if (blocco.isEmpty()) {
            throw Failure(u"Il file %1 non si può leggere fino in fondo."_s.arg(QDir::toNativeSeparators(path)));
        }
        copia.Scrivi(blocco);
    }
    copia.Chiudi();
    fatte_ += FileDellaCopia(path);
    return fatte_.back();
}

void VecchiFile::Togli(const QString& copia) {
    QFile::remove(copia);
    if (QDir().rmdir(copie_)) copie_.clear();
}

bool VecchiFile::Cancella(const QString& path) {
    QFile file(path);
    QFile copia(FileDellaCopia(path));
    return Uguali(file, copia) && file.remove();
}

}  // namespace cronovia
