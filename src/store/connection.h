// SPDX-License-Identifier: GPL-3.0-or-later
// The one place that speaks to SQLite: statements are prepared once, errors become messages for the person.
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

#include "interaction/failure.h"
#include "store/archive.h"

namespace cronovia {

/// How long another program that writes is waited for.
inline constexpr int kBusyTimeoutMs = 3000;

/// Has a connection run nothing that the file brings with it, and look twice at its pages.
void Distrust(SQLite::Database& database);

/// What went wrong, as the end of an Italian sentence.
QString DatabaseReason(const SQLite::Exception& error);

/// The message for an error of the database, naming the file.
Failure DatabaseFailure(const SQLite::Exception& error, const QString& path);

/// Runs `action` and turns the database's errors into failures.
template <typename Action>
auto Guarded(const QString& path, Action&& action) {
    try {
        return action();
    } catch (const SQLite::Exception& error) {
        throw DatabaseFailure(error, path);
    }
}

/// The text of a column of the row under way, counted from 0; empty for NULL.
inline QString ColumnText(const SQLite::Statement& statement, int column) {
    const SQLite::Column value = statement.getColumn(column);
    const char* text = value.getText("");
    return QString::fromUtf8(text, value.getBytes());
}

/// Binds a text to the parameter of that number, counted from 1.
inline void BindText(SQLite::Statement& statement, int index, QStringView text) {
    const QByteArray utf8 = text.toUtf8();
    statement.bind(index, std::string(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

/// A database file under way, with the statements prepared for it, and the copies that are kept of it.
class Archive::Connection {
  public:
    /// Opens the file for reading and writing. Throws what the database throws, also when there is none.
    explicit Connection(const QString& path);

    /// The file, for messages.
    [[nodiscard]] const QString& Path() const { return path_; }
    /// For what `Prepared` is not made for.
    SQLite::Database& Database() { return database_; }

    /// A statement ready to be bound; it stays prepared for the next time.
    SQLite::Statement& Prepared(const std::string& sql);

    /// The same for a statement that changes the archive; a `std::logic_error` while one moment of it is being read, a
    /// `Failure` when it is damaged. Outside a transaction the copy of the day comes first.
    SQLite::Statement& ForWriting(const std::string& sql);

    /// Whether a transaction or a read snapshot is open.
    [[nodiscard]] bool InTransaction() const;

    /// What the archive suffers from, for the person; empty as far as is known.
    [[nodiscard]] const QString& Damage() const { return damage_; }
    /// It is damaged: nothing can be written any more.
    void MarkDamaged();

    /// What `Archive` promises by the same names.
    Mark PresentMark();
    void KeepDailyCopies(std::function<QDateTime()> now, std::function<void(const QString&)> tell,
                         std::function<int()> newest);
    void KeepCopy(const QString& reason);

    /// The two ends of a read snapshot, the outermost one.
    void BeginReading();
    void EndReading();

    /// The number that a query answers with; a `Failure` when it cannot be asked.
    std::int64_t Number(const std::string& sql);

  private:
    void KeepCopyOfToday();
    void LayCopyNow(const QString& reason);

    /// Who keeps copies, and what was kept.
    struct Keeping {
        std::function<QDateTime()> now;
        std::function<void(const QString&)> tell;
        std::function<int()> newest;
        QDate day;                 // for which there is a copy, or was none to be had
        std::optional<Mark> mark;  // of the archive at the last copy
    };

    QString path_;
    SQLite::Database database_;
    std::unordered_map<std::string, SQLite::Statement> statements_;
    bool reading_ = false;
    QString damage_;
    std::optional<Keeping> keeping_;
};

}  // namespace cronovia
