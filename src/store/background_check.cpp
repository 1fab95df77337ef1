// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/background_check.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <QDeadlineTimer>
#include <chrono>
#include <utility>

#include "store/archive_check.h"
#include "store/connection.h"

namespace cronovia {

namespace {

constexpr std::chrono::milliseconds kLongest(kBusyTimeoutMs - 500);
constexpr int kStepsBetweenLooks = 1000;

struct Limits {
    std::stop_token stop;
    QDeadlineTimer deadline{kLongest};

    [[nodiscard]] bool Reached() const { return stop.stop_requested() || deadline.hasExpired(); }
};

std::optional<bool> IsDamaged(const QString& path, const std::stop_token& stop) {
    try {
        Limits limits{stop};
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        Distrust(database);
        const auto look = [](void* given) { return static_cast<const Limits*>(given)->Reached() ? 1 : 0; };
        sqlite3_progress_handler(database.getHandle(), kStepsBetweenLooks, look, &limits);
        return AnyDamage(CheckDatabase(database, CheckDepth::Indexes));
    } catch (const SQLite::Exception&) {  // whoever needs the archive will tell
        return std::nullopt;
    }
}

}  // namespace

void BackgroundCheck::Start(Ended ended) {
    if (thread_.joinable()) return;
    thread_ = std::jthread([path = path_, ended = std::move(ended)](const std::stop_token& stop) {
        const std::optional<bool> damaged = IsDamaged(path, stop);
        if (!stop.stop_requested()) ended(damaged);
    });
}

void BackgroundCheck::Stop() {
    if (!thread_.joinable()) return;
    thread_.request_stop();
    thread_.join();
}

}  // namespace cronovia
