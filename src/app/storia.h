// SPDX-License-Identifier: GPL-3.0-or-later
// The one history of changes that can be taken back and done again.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "interaction/failure.h"
#include "store/archive.h"

namespace cronovia {

/// What a step belongs to. Steps of different kinds are taken back apart from each other.
enum class Ambito {
    Viaggio,   ///< the open trip: its steps go when another one is loaded
    Guida,     ///< the guide screen: its steps go when it is closed
    Archivio,  ///< the archive: its steps outlive the trip that is open
};

/// A change that was made: a value with a name that knows how it is taken back.
struct Passo {
    /// Takes the change back and returns the step that makes it again; nothing when that cannot be done. A `Failure`
    /// has changed nothing and may be tried again, but for a `PassoPerduto`.
    using Disfa = std::function<std::optional<Passo>(const Passo&)>;

    QString nome;  ///< what undo and redo call it, "spostamento di ROMA"
    Ambito ambito = Ambito::Viaggio;
    Disfa disfa;
    std::optional<Archive::Mark> archivio;  ///< the archive right after a step that needs it to be unchanged
};

/// Somebody else has been at what the step changed: it is of no use any more.
class PassoPerduto : public Failure {
  public:
    using Failure::Failure;
};

/// Steps in the order in which they were made, and those that were taken back. It changes nothing by itself.
class Storia {
  public:
    /// `proprie` tells how many changes this window has made to the archive: a step that needs it as it was before some
    /// of them is passed over. What others changed is found when the step is tried.
    explicit Storia(std::function<std::int64_t()> proprie) : proprie_(std::move(proprie)) {}

    /// Adds a step that was made. Steps of its kind that were taken back are forgotten.
    void Ricorda(Passo passo);
    /// Drops the steps of that kind, made and taken back.
    void Dimentica(Ambito ambito);

    /// The step of that kind to be taken back, or done again, next; nothing when there is none.
    [[nodiscard]] const Passo* DaAnnullare(Ambito ambito) const;
    [[nodiscard]] const Passo* DaRipetere(Ambito ambito) const;

    /// Take it back, and do it again; nothing happens when there is none. What a step throws is passed on; one that
    /// throws `PassoPerduto` is gone.
    void Annulla(Ambito ambito);
    void Ripeti(Ambito ambito);

    /// The archive is another object now: the steps that need it unchanged go.
    void ArchivioSostituito();
    /// A change that no step minds, such as which trip is current: steps that need the archive as it was before it are
    /// content with how it is now.
    void SegueArchivio(const Archive::Mark& prima, const Archive::Mark& adesso);

  private:
    [[nodiscard]] bool Valido(const Passo& passo) const;
    [[nodiscard]] const Passo* Prossimo(const std::vector<Passo>& passi, Ambito ambito) const;
    void Sposta(std::vector<Passo>& da, std::vector<Passo>& a, Ambito ambito) const;

    std::function<std::int64_t()> proprie_;
    std::vector<Passo> fatti_;
    std::vector<Passo> annullati_;
};

}  // namespace cronovia
