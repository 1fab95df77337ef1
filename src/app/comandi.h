// The commands of the two rows of buttons as values: what buttons, keys and tests know of them.
#pragma once

#include <array>

#include "app/postazione.h"

namespace cronovia {

/// One command, in words and as a procedure.
struct DescrizioneComando {
    Comando comando;
    const char16_t* nome;         ///< of its controls
    const char16_t* scritta;      ///< caption; its letter, which no other has on that screen, is marked by "&"
    const char16_t* istruzione;   ///< tip, plain text
    void (*esegui)(Postazione&);  ///< does it; tells by itself what goes wrong
};

/// In the order of `Comando`.
[[nodiscard]] const std::array<DescrizioneComando, kComandi>& TabellaComandi();
[[nodiscard]] const DescrizioneComando& Descrizione(Comando comando);

/// The caption at this moment: one command unlocks what it computed, another one stops what runs.
[[nodiscard]] QString Scritta(Comando comando, const StatoComandi& stato);

}  // namespace cronovia
