// The commands of the two rows of buttons as values: what buttons, keys and tests know of them.
#pragma once

#include <array>

#include "app/postazione.h"

namespace cronovia {

/// One command, in words and as a procedure.
struct DescrizioneComando {
    Comando comando;
    const char16_t* nome;        ///< of its controls
    const char16_t* scritta;     ///< caption, its letter marked by "&"
    const char16_t* istruzione;  ///< tip, plain text
    /// Keys as `QKeySequence` reads them; null: Alt and the letter of the caption; empty: none, since the letter is
    /// that of another command on the same screen.
    const char16_t* tasti;
    void (*esegui)(Postazione&);  ///< does it; tells by itself what goes wrong
};

/// In the order of `Comando`.
[[nodiscard]] const std::array<DescrizioneComando, kComandi>& Descrizioni();
[[nodiscard]] const DescrizioneComando& Descrizione(Comando comando);

/// The caption at this moment: one command unlocks what it computed, another one stops what runs.
[[nodiscard]] QString Scritta(Comando comando, const StatoComandi& stato);

}  // namespace cronovia
