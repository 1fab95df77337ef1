// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the window as values: what menus, buttons, keys and tests know of them.
#pragma once

#include <array>

#include "app/postazione.h"

namespace cronovia {

/// The menus, from left to right; `Nessuno` is for what lives in a frame that is chosen from.
enum class Menu { File, Modifica, Itinerario, Cronovia, Guida, Vista, Aiuto, Nessuno };
/// How many menus there are.
inline constexpr std::size_t kMenu = static_cast<std::size_t>(Menu::Nessuno);

/// One command, in words and as a procedure. It has a button where a screen places one.
struct DescrizioneComando {
    Comando comando;
    const char16_t* nome;         ///< of its button: "cmd" and a word; of its action: that word, its first letter small
    const char16_t* scritta;      ///< of its button; its letter, which no other has on that screen, is marked by "&"
    const char16_t* voce;         ///< in the menu; null: as on the button
    const char16_t* scorciatoia;  ///< "Ctrl+S", or empty; those enabled together have different ones
    const char16_t* istruzione;   ///< tip, plain text
    Menu menu;
    Momenti quando;               ///< it can be used in these moments
    void (*esegui)(Postazione&);  ///< does it; tells by itself what goes wrong; null: the window shows or hides a part
    bool stacca = false;          ///< a line parts it from the one above in the menu
    bool perRighe = false;        ///< its key is that of the rows alone, not of fields
};

/// In the order of `Comando`.
[[nodiscard]] const std::array<DescrizioneComando, kComandi>& TabellaComandi();
[[nodiscard]] const DescrizioneComando& Descrizione(Comando comando);

/// Name of its drawing, "salva"; empty when it has none.
[[nodiscard]] QString Icona(Comando comando);

/// Captions at this moment: one command unlocks what it computed, another one stops what runs, undo names its step.
[[nodiscard]] QString Scritta(Comando comando, const StatoComandi& stato);
[[nodiscard]] QString VoceDiMenu(Comando comando, const StatoComandi& stato);

}  // namespace cronovia
