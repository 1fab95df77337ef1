// The exchange screen, taking an import back, and the data of the earlier release.
#include <QDir>
#include <QFileInfo>
#include <utility>

#include "app/scrivania.h"
#include "exchange/iei/annulla_import.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/vecchi/converti.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

// The run can be stopped; what goes wrong in it is told. False then.
bool Scrivania::Corsa(const std::function<void()>& azione) {
    const QString modo = modoComandi_;
    ApplicaModo(u"Es"_s);
    calcoloInCorso_ = true;
    volti_.mostra();
    const bool riuscita = Prova(azione);
    calcoloInCorso_ = false;
    volti_.avanzamento.Advance(0, 0);
    ApplicaModo(modo);
    return riuscita;
}

// An empty desk under the screen, which covers it.
void Scrivania::PreparaExportImport(ModoScambio modo) {
    MettiSulTavolo({sessione_.MetaProposta(volti_.adesso()), {}, {}});
    scambio_.emplace(modo, QString(), TavoloScambio::Lista());
    ApplicaModo(u"zz"_s);
}

// The trip that was current is on the desk again; none is when it cannot be read, since the desk is empty.
void Scrivania::EsciExportImport() {
    scambio_.reset();
    try {
        CaricaMetaCorrente();
    } catch (const Failure&) {
        codiceMetaCorrente_.clear();
        ApplicaModo(u"all"_s);
        throw;
    }
}

// No trip is current any more. The mode comes first: the commands are needed even when the archive cannot be read.
void Scrivania::FinisciScambio() {
    codiceMetaCorrente_.clear();
    ApplicaModo(scambio_ ? u"zz"_s : u"all"_s);
    MettiSulTavolo({sessione_.MetaProposta(volti_.adesso()), {}, {}});
}

// After an exchange every command can be given though no trip is open; tells so.
bool Scrivania::SenzaMeta() {
    if (!codiceMetaCorrente_.isEmpty()) return false;
    volti_.interazione.Show({u"Nessuna mèta è aperta: sceglila con «Ricerca mèta»."_s, {}, Icon::Exclamation});
    return true;
}

void Scrivania::Export() {
    Prova([&] {
        PreparaExportImport(ModoScambio::Export);
        TavoloScambio::Lista mete = ElencoMete(sessione_.Archivio());
        const bool nessuna = mete.empty();
        scambio_.emplace(ModoScambio::Export, QString(), std::move(mete));
        if (!nessuna) return;
        volti_.mostra();
        volti_.interazione.Show({u"Non ci sono altre mète da esportare..."_s, {}, Icon::Information});
    });
}

void Scrivania::Import(const std::function<QString()>& scegliFile) {
    Prova([&] {
        PreparaExportImport(ModoScambio::Import);
        volti_.mostra();
        const QString file = scegliFile();
        const StatoFile stato = StatoDelFile(file);
        std::optional<TavoloScambio::Lista> mete;
        const bool letto = !file.isEmpty() && Corsa([&] { mete = LeggiElencoMete(file, volti_.avanzamento); });
        if (mete) {
            scambio_.emplace(ModoScambio::Import, file, std::move(*mete), stato);
            return;
        }
        EsciExportImport();
        if (letto) volti_.interazione.Show({u"Lettura delle mète interrotta."_s, {}, Icon::Exclamation});
    });
}

void Scrivania::ApriFile(const QString& file) {
    if (Comandi().Abilitato(Comando::Import)) {
        Import([&] { return file; });
        return;
    }
    volti_.interazione.Show(
        {u"Per importare %1 torna prima alla schermata della mèta."_s.arg(QDir::toNativeSeparators(file)),
         {},
         Icon::Exclamation});
}

void Scrivania::SulloScambio(const std::function<void(TavoloScambio&)>& comando) {
    if (scambio_ && !calcoloInCorso_) comando(*scambio_);
}

void Scrivania::ImExp(const std::function<QString()>& scegliFile) {
    if (!scambio_ || scambio_->Scelte().empty()) return;
    Prova([&] {
        if (scambio_->Modo() == ModoScambio::Export) {
            Esporta(scegliFile());
        } else {
            Importa();
        }
    });
}

void Scrivania::Esporta(const QString& file) {
    if (file.isEmpty()) {
        EsciExportImport();
        return;
    }
    const QString nome = QDir::toNativeSeparators(file);
    const Question ricopro{u"Il file %1 esiste già: ricopro?"_s.arg(nome), u"File %1 esistente"_s.arg(nome)};
    const bool libero = !QFileInfo::exists(file) || volti_.interazione.Ask(ricopro) == Answer::Yes;
    EsitoExport esito;
    const bool esportate =
        libero && BoxConferma(volti_.interazione, u"EX"_s) && Corsa([&] {
            esito = EsportaMete({sessione_.Archivio(), file, scambio_->CodiciScelti(), true, true}, volti_.avanzamento);
        });
    FinisciScambio();
    if (!esportate) return;
    volti_.mostra();
    volti_.interazione.Show({TestoEsito(esito), {}, esito.interrotta ? Icon::Exclamation : Icon::Information});
}

void Scrivania::Importa() {
    EsitoImport esito;
    const QString file = QFileInfo(scambio_->File()).fileName();
    const bool importate = BoxConferma(volti_.interazione, u"IM"_s) && Corsa([&] {
                               esito = ImportaMete({sessione_.Archivio(), scambio_->File(), scambio_->CodiciScelti(),
                                                    scambio_->StatoDelFileLetto()},
                                                   volti_.avanzamento);
                           });
    if (!importate || esito.interrotta) {
        FinisciScambio();
        if (esito.interrotta) volti_.interazione.Show({TestoEsito(esito), {}, Icon::Exclamation});
        return;
    }
    const bool qualcosa = esito.meteInserite + esito.tappeInserite + esito.vociInserite > 0;
    if (qualcosa) import_ = ImportFatto{file, esito.traccia};
    scambio_.reset();
    FinisciScambio();
    volti_.mostra();
    if (!qualcosa) {
        volti_.interazione.Show({TestoEsito(esito), {}, Icon::Information});
        return;
    }
    if (volti_.interazione.ShowUndoable({TestoEsito(esito), {}, Icon::Information}, u"Annulla importazione"_s)) {
        AnnullaImportazione();
    }
}

void Scrivania::FineScambio() {
    Prova([&] {
        scambio_.reset();
        FinisciScambio();
    });
}

std::optional<QString> Scrivania::DaAnnullareImport() const {
    const bool possibile = import_ && Comandi().Abilitato(Comando::Import) &&
                           sessione_.Archivio().OwnChanges() == import_->traccia.stato.own;
    return possibile ? std::optional(u"importazione di %1"_s.arg(import_->file)) : std::nullopt;
}

// A failed attempt can be made again, unless the archive is another one by now.
void Scrivania::AnnullaImportazione() {
    const ImportFatto fatto = *import_;
    Prova([&] {
        Archive& archivio = sessione_.Archivio();
        if (archivio.PresentMark() != fatto.traccia.stato) import_.reset();
        AnnullaImport(archivio, fatto.traccia);
        import_.reset();
        if (CaricaDatiAnagraficiMeta(archivio, codiceMetaCorrente_)) {
            RicalcolaVisite(archivio, righe_,
                            OrarioCorretto(meta_.parametri));  // what is typed in the trip's fields stays
            RicalcolaTempi();
            memorizzate_ = righe_;
        } else if (!NuovaMetaDigitata()) {
            CaricaMetaCorrente();
        }
        volti_.mostra();
        volti_.interazione.Show({u"L'importazione di %1 è stata annullata."_s.arg(fatto.file), {}, Icon::Information});
    });
}

// Which trip is current is no change of what was imported.
void Scrivania::RicordaMetaCorrente(const QString& codice) {
    Archive& archivio = sessione_.Archivio();
    Transaction transaction(archivio);
    const bool intatto = import_ && archivio.PresentMark() == import_->traccia.stato;
    SalvaIlCodiceMetaCorrente(archivio, codice);
    if (intatto) import_->traccia.stato = archivio.PresentMark();
    transaction.Commit();
}

void Scrivania::Converte() {
    const Question domanda{
        u"Vuoi convertire i vecchi file nel corrente database?\n\n"
        "I dati già presenti nel database saranno integrati e non cancellati.\n\nProcedo?"_s,
        u"Conversione file"_s};
    if (volti_.interazione.Ask(domanda) != Answer::Yes) return;
    Prova([&] {
        EsitoConversione esito;
        const bool convertiti = Corsa([&] {
            esito =
                ConvertiVecchiFile({sessione_.Archivio(), sessione_.Cartella(), volti_.adesso()}, volti_.avanzamento);
        });
        if (!convertiti || esito.interrotta) {
            converteOfferto_ = true;
            if (esito.interrotta) volti_.interazione.Show({TestoEsito(esito), {}, Icon::Exclamation});
            return;
        }
        CaricaMetaCorrente();
        volti_.mostra();
        volti_.interazione.Show({TestoEsito(esito), {}, Icon::Information});
    });
}

}  // namespace cronovia
