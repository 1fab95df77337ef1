// Undo and redo of the changes to an itinerary.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "itinerary/modifiche.h"

namespace cronovia {

/// An itinerary with the row that is current in it.
struct StatoItinerario {
    RigheItinerario righe;
    int rigaCorrente = 1;
};

/// The states before and after named changes. A new change forgets what was undone.
class Cronologia {
  public:
    /// Remembers the state that a change with this name is about to replace.
    void Ricorda(const QString& nome, StatoItinerario prima);
    void Azzera();

    /// Name of the change that would be undone or done again; nothing when there is none.
    [[nodiscard]] std::optional<QString> DaAnnullare() const;
    [[nodiscard]] std::optional<QString> DaRipetere() const;

    /// Give back the state to show in the place of the present one; nothing when there is none.
    std::optional<StatoItinerario> Annulla(StatoItinerario presente);
    std::optional<StatoItinerario> Ripeti(StatoItinerario presente);

  private:
    struct Passo {
        QString nome;
        StatoItinerario stato;
    };
    static std::optional<StatoItinerario> Sposta(std::vector<Passo>& da, std::vector<Passo>& a,
                                                 StatoItinerario presente);

    std::vector<Passo> fatti_;
    std::vector<Passo> annullati_;
};

}  // namespace cronovia
