// SPDX-License-Identifier: GPL-3.0-or-later
// The files of the earlier release in a data folder: found, copied away, and removed once they are converted.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

namespace cronovia {

/// Whether the folder holds the file of trips, and so something to convert.
bool CiSonoVecchiFile(const QString& cartella);

/// Names of the files; that of the stages of a trip ends with the last four characters of its code.
QString NomeVecchieMete();
QString NomeVecchiaGuida();
QString NomeVecchieTappe(const QString& codiceMeta);

/// Each file is copied into a folder of its own and read from there: it may change meanwhile. Unless they are kept, the
/// copies go with the object. The folder is named by date and time at the very end; one that was left by a conversion
/// that did not come so far is gone on with, unless it holds copies of other files under the same names.
class VecchiFile {
  public:
    /// The files that the data folder holds now; `adesso` names the folder of their copies.
    VecchiFile(const QString& cartella, const QDateTime& adesso);
    VecchiFile(const VecchiFile&) = delete;
    VecchiFile& operator=(const VecchiFile&) = delete;
    ~VecchiFile();

    /// Path of the file with that name in any case, as the folder held it at the beginning; nothing without one.
    [[nodiscard]] std::optional<QString> Trova(const QString& nome) const;

    /// Copies a file found and returns the path of its copy. A `Failure` when it cannot be read or the copy written.
    QString Copia(const QString& path);
    /// Takes a copy back; the folder goes with the last one.
    void Togli(const QString& copia);

    /// Where a copy of the database can be laid, under a name that is free.
    QString PostoPerDatabase(const QString& nome);

    /// The copies stay.
    void Tieni() { tenuti_ = true; }
    /// All is done: the folder gets its name.
    void Concludi();
    /// Path of the folder of the copies; empty before the first one.
    [[nodiscard]] const QString& CartellaCopie() const { return copie_; }

    /// Removes a file that is still what its copy is; else it stays and false is returned.
    bool Cancella(const QString& path);

  private:
    void CreaCartella();
    [[nodiscard]] bool TieneAltro(const QString& copie) const;
    static QString NomeLibero(const QString& nome, const QString& dopo = {});
    [[nodiscard]] QString FileDellaCopia(const QString& path) const;

    QString cartella_;
    QDateTime adesso_;
    QHash<QString, QString> nomi_;  // by the name in small letters
    QString copie_;
    QStringList fatte_;  // what this object has laid there
    bool tenuti_ = false;
};

}  // namespace cronovia
