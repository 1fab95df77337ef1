// SPDX-License-Identifier: GPL-3.0-or-later
// What a route planner's export tells between one stage and the next.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <functional>
#include <vector>

namespace cronovia {

/// A road that a stage was reached by.
struct StradaLetta {
    QString nome;
    int km = 0;  ///< travelled on it, as far as the export tells
};

/// One stage as the readers yield it.
struct TappaLetta {
    QString localita;                 ///< upper case, without "vicino a"; never empty
    std::vector<StradaLetta> strade;  ///< to reach it, in the order in which they were met, each once
    bool traghetto = false;           ///< reached by one
    int km = 0;                       ///< from the previous stage
};

/// Takes the stages one by one, as they are reached.
using DestinazioneTappe = std::function<void(const TappaLetta&)>;

/// Collects roads, ferries and kilometres until a place is reached.
class TappaInCorso {
  public:
    static constexpr int kMassimoKm = 32'767;   ///< a larger distance counts as this one
    static constexpr int kMassimoStrade = 101;  ///< of one stage; what comes beyond is left out
    static constexpr int kMassimoNome = 200;    ///< characters of a name; what comes beyond is left out

    /// Stages go to the destination, in their order.
    explicit TappaInCorso(DestinazioneTappe destinazione) : destinazione_(std::move(destinazione)) {}

    /// Notes a road of the stage under way, with its kilometres; one that was met before stays with those it had.
    void Percorre(const QString& strada, int km);
    /// The stage under way is reached by a ferry.
    void SiImbarca() { tappa_.traghetto = true; }

    /// The cumulative distance of a line. One smaller than the last restarted from zero and is added to it.
    void Avanza(int km);

    [[nodiscard]] bool AlVia() const { return alVia_; }  ///< no stage was reached yet
    /// Kilometres since the last stage, whatever `Avanza` was told.
    [[nodiscard]] std::int64_t KmDallUltimaTappa() const { return kmBase_ + kmRiga_ - kmUltimaTappa_; }
    /// Whether the text names a place, and not that of the last stage.
    [[nodiscard]] bool Nuova(QStringView localita) const;

    /// Yields a stage with all that was collected. The text must name a place.
    void Arriva(QStringView localita);

  private:
    DestinazioneTappe destinazione_;
    TappaLetta tappa_;  // under way
    bool alVia_ = true;
    std::int64_t kmBase_ = 0;  // travelled before the distances restarted
    int kmRiga_ = 0;
    std::int64_t kmUltimaTappa_ = 0;
};

}  // namespace cronovia
