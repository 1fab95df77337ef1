// The commands as values: what buttons, menus, tests and help know of them.
#pragma once

#include "app/postazione.h"

namespace cronovia {

struct DescrizioneComando {
    Comando comando;
    const char16_t* nome;        ///< of its controls
    const char16_t* scritta;     ///< caption, its letter marked by "&"
    const char16_t* istruzione;  ///< tip, plain text
    /// Keys as `QKeySequence` reads them; null: Alt and the letter of the caption; empty: none, since the letter is
    /// that of another command on the same screen.
    const char16_t* tasti;
    void (*esegui)(Postazione&);
};

/// In the order of `Comando`.
[[nodiscard]] const std::array<DescrizioneComando, kComandi>& Descrizioni();
[[nodiscard]] const DescrizioneComando& Descrizione(Comando comando);

/// The caption at this moment: one command unlocks what it computed, another one stops what runs.
[[nodiscard]] QString Scritta(Comando comando, const StatoComandi& stato);

}  // namespace cronovia
