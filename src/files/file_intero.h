// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are there whole or not at all.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace cronovia {

/// A file that is written beside its place and put there when it is closed; until then, and when it never is, the file
/// that was there stays. What goes wrong is a `Failure`.
class FileIntero {
  public:
    /// Begins the file beside its place.
    explicit FileIntero(const QString& path);

    void Scrivi(const QByteArray& byte);
    /// Hands all that was written to the disk, and finds out whether it had room.
    void Completa();
    /// `Completa`, then lays the file in its place.
    void Chiudi();

  private:
    [[noreturn]] void NonScritto() const;
    [[nodiscard]] QString Nome() const;

    QSaveFile file_;
};

/// A `Failure` when the path is a folder or the like, or a file: unless `sovrascrivi`, but an archive is never
/// replaced.
void RifiutaFileEsistente(const QString& path, bool sovrascrivi);

/// A name of a file, without ending and of at most 60 characters: what a system may not take in it is "-", `altrimenti`
/// when nothing is left.
QString NomeDiFile(const QString& testo, QStringView altrimenti);

/// Whether both lead to one file, that is there or would be: by other spelling, over links, as another name of it.
bool StessoPosto(const QString& a, const QString& b);

/// A `Failure` when the path leads to what belongs to that archive: its file, what the database lays beside it, its
/// copies.
void RifiutaFileArchivio(const QString& path, const QString& archivio);

}  // namespace cronovia
