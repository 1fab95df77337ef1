// SPDX-License-Identifier: GPL-3.0-or-later
// What a procedure may ask of the person.
#pragma once

#include <QString>

namespace cronovia {

/// The picture beside the text of a box.
enum class Icon { None, Information, Exclamation, Programma };

/// A box with text and an OK button. Without a title, the face puts the program's name.
struct Message {
    QString text;
    QString title;
    Icon icon = Icon::None;
};

/// What a question was answered with; `Cancel` only where it was offered.
enum class Answer { Yes, No, Cancel };

/// A box with Yes and No, and with Cancel when that is offered.
struct Question {
    QString text;
    QString title;
    bool cancellable = false;
    Answer preset = Answer::Yes;  ///< what Enter answers
    bool salva = false;           ///< Yes reads "Salva", No "Non salvare"
    QString si = {};              ///< what Yes reads instead, and No: both or none
    QString no = {};
};

/// The face of the program towards one command: the window shows boxes, the command line prints, tests script answers.
class Interaction {
  public:
    Interaction() = default;
    Interaction(const Interaction&) = delete;
    Interaction& operator=(const Interaction&) = delete;
    virtual ~Interaction() = default;

    /// Returns when the message was read.
    virtual void Show(const Message& message) = 0;
    /// Returns with the answer.
    virtual Answer Ask(const Question& question) = 0;
    /// A message with a second button of that caption, which takes back what it tells of; true when it was pressed.
    virtual bool ShowUndoable(const Message& message, const QString& caption) = 0;
};

/// What is confirmed before it is done.
enum class Operazione {
    InserimentoMeta,
    ModificaMeta,
    AnnullamentoMeta,
    AnnullamentoItinerario,
    InserimentoTratto,
    Export,
    Import,
};

/// The confirmation that commands share: "Confermi ...?" with the operation's name, which is its title too. True on
/// Yes. What is lost by it is named (`perso`), and No preset then.
bool BoxConferma(Interaction& interaction, Operazione operazione, const QString& perso = {});

}  // namespace cronovia
