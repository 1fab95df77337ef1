// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs of the command line.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

#include "app/sessione.h"
#include "cli/uscita.h"

namespace cronovia {

/// A command line that cannot be understood; carries one Italian sentence.
class WrongUsage : public std::runtime_error {
  public:
    /// Takes that sentence.
    explicit WrongUsage(const QString& message) : std::runtime_error(message.toStdString()), message_(message) {}

    /// The sentence.
    [[nodiscard]] const QString& Message() const { return message_; }

  private:
    QString message_;
};

/// An option of a verb; without `valore` it is a mere switch.
struct Opzione {
    QString nome;    ///< without the dashes before it
    QString valore;  ///< what the help calls its value
    QString descrizione;
    bool obbligatoria = false;  ///< the line is wrong without it
};

struct Richiesta;

/// Opens the archive. A verb calls it once its options are read: a line that cannot be understood makes no archive.
using ApriSessione = std::function<Sessione()>;

/// Does what a verb does, writes its answer to `uscita`; a `Failure` or `WrongUsage` when it cannot.
using ProceduraVerbo = void (*)(const ApriSessione&, const Richiesta&, QTextStream& uscita);

/// What draws the pages of the schedule, of the guide and of the days. It needs libraries that all other verbs do
/// without, so it comes from outside.
struct Stampe {
    ProceduraVerbo cronovia = nullptr;
    ProceduraVerbo guida = nullptr;
    ProceduraVerbo giornate = nullptr;
};

/// What a verb was called with.
struct Richiesta {
    QStringList argomenti;           ///< behind the verb, without the options
    QMap<QString, QString> opzioni;  ///< the options given; a switch with an empty value
    Formato formato = Formato::Testo;
    Stampe stampe;                    ///< empty where nothing can be drawn
    QString cartella;                 ///< the data folder, for who does not open the archive as the others do
    Progress* avanzamento = nullptr;  ///< never null while a verb runs
    /// Asks the person; nothing when nobody can answer.
    std::function<std::optional<bool>(const QString& domanda)> chiede;

    /// The whole number of an option within its limits; nothing when it was not given, `WrongUsage` when it is none.
    [[nodiscard]] std::optional<int> Intero(const QString& nome, int minimo, int massimo) const;
};

/// A datum as a command line gives it, "nome=valore", and all those of a line from argument `primo` on. `WrongUsage`
/// when one has another form, or control characters.
struct DatoNominato {
    QString nome;
    QString valore;
};
std::vector<DatoNominato> DatiNominati(const QStringList& argomenti, qsizetype primo);

/// `WrongUsage` when an argument, of which `cosa` is the name, holds control characters.
void RifiutaCaratteriDiControllo(const QString& cosa, const QString& testo);

/// Data that a verb takes as nome=valore: their names, and what can be given.
struct DatoDetto {
    QString nomi;
    QString descrizione;
};

/// One verb, for the help and for running it.
struct Verbo {
    QString nome;
    QString argomenti;  ///< as the help shows them
    QString descrizione;
    std::vector<Opzione> opzioni;
    int minimoArgomenti = 0;
    int massimoArgomenti = 0;  ///< -1: any number
    bool conFormato = false;   ///< answers in the format wanted
    ProceduraVerbo esegui = nullptr;
    bool conCoordinate = false;        ///< its arguments may be negative numbers, and no options
    std::vector<DatoDetto> dati = {};  ///< what it takes as nome=valore, in the order of the help
};

/// All verbs, in the order of the help.
const std::vector<Verbo>& Verbi();

/// What the verbs do; the help tells of each. They write their answer, and what goes wrong is a `Failure`.
void EseguiElenca(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiNuova(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiImporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiEsporta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiConverte(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiPercorso(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiTappe(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiParametri(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiElimina(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiCompletamento(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiItinerario(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiCalcola(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiConfronta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiGiornate(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiLuoghi(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiStampa(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiGuida(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiVerifica(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiCopie(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);
void EseguiRipristina(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita);

}  // namespace cronovia
