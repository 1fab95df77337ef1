// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/documento.h"

#include <QDateTime>
#include <algorithm>
#include <tuple>
#include <utility>

#include "interaction/failure.h"
#include "trips/orario.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Whether a schedule takes the same from both.
bool StessoCalcolo(const Meta& a, const Meta& b) {
    return a.dataInizio == b.dataInizio && a.oraInizio == b.oraInizio && a.parametri == b.parametri &&
           a.giorniAdeguamento == b.giorniAdeguamento && a.scadenza == b.scadenza && a.prezzi == b.prezzi;
}

}  // namespace

void Documento::Metti(MetaAperta aperta) {
    letta_ = Memorizzata(aperta);
    Metti(aperta.meta, aperta.orario, std::move(aperta.tappe));
}

void Documento::Metti(const Meta& campi, const OrarioCorretto& orario, RigheItinerario righe) {
    MettiCampi(campi, orario);
    if (const auto giorno = campi_.partiInizio.Giorno()) {
        campi_.dataInizio = giorno;
        campi_.partiInizio = {};
    }
    caricati_ = campi_;
    orarioCaricato_ = orario_;
    MettiTappe(std::move(righe));
}

void Documento::MettiTappe(RigheItinerario righe) {
    cronovia_.reset();
    Decade();  // the last schedule was that of the stages so far
    righe_ = std::move(righe);
    caricate_ = righe_;
    rigaCorrente_ = 1;
    storia_.Dimentica(Ambito::Viaggio);
    RicalcolaTempi();
    Ritrova();
}

void Documento::Apri(const QString& codice) {
    MetaAperta scelta = sessione_.ApriMeta(codice);  // refused here when another window deleted it
    RicordaCorrente(codice);
    Metti(std::move(scelta));
    codice_ = codice;
}

// A damaged archive can be read, so trips can be opened.
void Documento::RicordaCorrente(const QString& codice) {
    Archive& archivio = sessione_.Archivio();
    if (!archivio.Damage().isEmpty()) return;
    Transaction transaction(archivio);
    const Archive::Mark prima = archivio.PresentMark();
    SalvaIlCodiceMetaCorrente(archivio, codice);
    const Archive::Mark adesso = archivio.PresentMark();
    transaction.Commit();
    storia_.SegueArchivio(prima, adesso);
}

void Documento::Ricarica(const QDateTime& adesso) {
    Archive& archivio = sessione_.Archivio();
    const ReadSnapshot momento(archivio);
    const bool esiste = CaricaMeta(archivio, codice_).has_value();
    const QString codice = esiste ? codice_ : RicercaMetaCorrente(archivio);
    if (codice.isEmpty()) {
        Proponi(adesso);
    } else {
        Metti(sessione_.ApriMeta(codice));
    }
    codice_ = codice;
}

void Documento::Proponi(const QDateTime& adesso) {
    const Meta proposta = sessione_.MetaProposta(adesso);
    letta_ = {};
    Metti(proposta, OrarioCorretto(proposta.parametri), {});
}

void Documento::RicaricaTappe() {
    MetaAperta aperta = sessione_.ApriMeta(codice_);
    letta_.tappe = Memorizzata(aperta).tappe;
    MettiTappe(std::move(aperta.tappe));
}

void Documento::Scarta() { Metti(caricati_, orarioCaricato_, caricate_); }

void Documento::DiventaNuova() {
    campi_.codice.clear();
    caricati_ = Meta();
    orarioCaricato_ = {};
    letta_ = {};
    MettiTappe({});
    codice_ = RicercaMetaCorrente(sessione_.Archivio());
}

// What was read then is compared when it is saved: a trip that changed since is not overwritten unseen.
void Documento::Riprendi(const LavoroSospeso& lavoro) {
    const Meta& letta = lavoro.letta.meta;
    Archive& archivio = sessione_.Archivio();
    const ReadSnapshot momento(archivio);
    const std::optional<MetaMemorizzata> adesso = LeggiMemorizzata(archivio, letta.codice);
    if (adesso && adesso->meta.localita == letta.localita) {
        Metti(sessione_.ApriMeta(letta.codice));
    } else {
        Metti(lavoro.caricati, OrarioCorretto(lavoro.caricati.parametri), lavoro.letta.tappe);
    }
    codice_ = letta.codice.isEmpty() ? RicercaMetaCorrente(archivio) : letta.codice;
    letta_ = lavoro.letta;
    ImpostaCampi(lavoro.campi);
    Mostra({lavoro.righe, lavoro.riga});
}

void Documento::RileggiVisite() {
    RigheItinerario righe = righe_;
    RicalcolaVisite(sessione_.Archivio(), righe, orario_);
    const bool intatte = !TappeModificate();
    if (righe != righe_) Decade();
    righe_ = std::move(righe);
    RicalcolaTempi();
    if (intatte) caricate_ = righe_;
}

// Fields or stages changed. A schedule on screen stays there until it is dropped.
void Documento::Decade() {
    Conserva();
    vale_ = false;
    ultima_.reset();
    if (!cronovia_) giornate_.clear();
    impedimento_.clear();
    ricerca_.reset();
    ++versione_;
}

// Fields and stages are still those of the schedule.
void Documento::Conserva() {
    if (ultima_) {
        passata_ = {std::move(*ultima_), giornate_, campi_, orario_, righe_};
    } else if (cronovia_ && vale_) {
        passata_ = {*cronovia_, giornate_, campi_, orario_, righe_};
    }
}

// A change that was taken back leaves the schedule as true as it was.
void Documento::Ritrova() {
    const bool serve = passata_ && !cronovia_ && !ultima_;
    if (!serve || !StessoCalcolo(passata_->campi, campi_)) return;
    if (passata_->orario != orario_ || passata_->righe != righe_) return;
    ultima_ = std::move(passata_->cronovia);
    giornate_ = std::move(passata_->giornate);
    passata_.reset();
    impedimento_.clear();
    ++versione_;
}

// What was found in the guide holds until something is written to the archive. All that these stages need is from one
// moment; others can write while it is computed with.
LettoreGuida& Documento::GuidaDelle(std::span<const Tappa> righe) {
    const ReadSnapshot momento(sessione_.Archivio());
    const Archive::Mark adesso = sessione_.Archivio().PresentMark();
    if (!guida_ || guidaLetta_ != adesso) {
        guida_.emplace(sessione_.Archivio());
        guidaLetta_ = adesso;
    }
    guida_->Anticipa(LocalitaDelleTappe(righe));
    return *guida_;
}

// Hours that the program put right are no others than those which were typed or stored: nothing is corrected twice.
OrarioCorretto Documento::OrarioDi(const ParametriViaggio& parametri) const {
    if (StessiOrari(parametri, campi_.parametri)) return orario_.Con(parametri);
    if (StessiOrari(parametri, caricati_.parametri)) return orarioCaricato_.Con(parametri);
    return OrarioCorretto(parametri);
}

void Documento::MettiCampi(const Meta& campi, const OrarioCorretto& orario) {
    if (!StessoCalcolo(campi, campi_) || orario != orario_) Decade();
    campi_ = campi;
    orario_ = orario;
    Ritrova();
}

void Documento::ImpostaCampi(const Meta& campi) { MettiCampi(campi, OrarioDi(campi.parametri)); }

void Documento::ImpostaParametri(const ParametriViaggio& parametri) {
    Meta campi = campi_;
    campi.parametri = parametri;
    ImpostaCampi(campi);
}

// What the program puts right by itself is no change of the person's.
void Documento::Correggi(const ParametriViaggio& parametri, const OrarioCorretto& orario) {
    const bool intatti = campi_.parametri == caricati_.parametri;
    Meta campi = campi_;
    campi.parametri = parametri;
    MettiCampi(campi, orario);
    if (intatti) caricati_.parametri = parametri;
}

void Documento::OrdinaOrari() {
    const ParametriViaggio parametri = InOrdine(campi_.parametri);
    Correggi(parametri, OrarioDi(parametri));
}

void Documento::CorreggiOrari() { Correggi(orario_.Parametri(), orario_); }

void Documento::RicalcolaTempi() {
    riepilogo_ = CalcolaKmTempiItinerario(righe_, orario_, campi_.giorniAdeguamento);
    const bool intatti = campi_.giorniAdeguamento == caricati_.giorniAdeguamento;
    campi_.giorniAdeguamento = riepilogo_.giorniAdeguamento;
    if (intatti) caricati_.giorniAdeguamento = campi_.giorniAdeguamento;
}

void Documento::SelezionaRiga(int riga) {
    const int tappe = NumeroTappe(righe_);
    rigaCorrente_ = std::max(1, riga > tappe ? tappe + 1 : riga);
}

// Takes over changed stages: times and visits are computed afresh.
void Documento::Mostra(Stato stato) {
    if (stato.giorniESoste) {
        Meta campi = campi_;
        std::tie(campi.giorniAdeguamento, campi.parametri.calcoloSoste) = *stato.giorniESoste;
        ImpostaCampi(campi);
    }
    RicalcolaVisite(GuidaDelle(stato.righe), stato.righe, orario_);
    if (stato.righe != righe_) Decade();
    righe_ = std::move(stato.righe);
    RicalcolaTempi();
    Ritrova();
    SelezionaRiga(stato.rigaCorrente);
}

Documento::Stato Documento::StatoPresente(bool conGiorni) const {
    Stato stato{righe_, rigaCorrente_};
    if (conGiorni) stato.giorniESoste.emplace(campi_.giorniAdeguamento, campi_.parametri.calcoloSoste);
    return stato;
}

Passo Documento::PassoVerso(const QString& nome, Stato prima) {
    return {nome,
            Ambito::Viaggio,
            [this, prima = std::move(prima)](const Passo& passo) {
                Stato presente = StatoPresente(prima.giorniESoste.has_value());
                presente.posizioni = AnnullaPosizioni(sessione_.Archivio(), prima.posizioni);
                Mostra(prima);
                return std::optional(PassoVerso(passo.nome, std::move(presente)));
            },
            {}};
}

void Documento::Modifica(const QString& nome, RigheItinerario nuove, int riga, CambiPosizioni posizioni) {
    nuove.resize(static_cast<std::size_t>(NumeroTappe(nuove)));
    if (nuove == righe_ && posizioni.empty()) {
        SelezionaRiga(riga);
        return;
    }
    Stato prima{righe_, rigaCorrente_, {}, std::move(posizioni)};
    Mostra({std::move(nuove), riga});
    storia_.Ricorda(PassoVerso(nome, std::move(prima)));
}

void Documento::Adotta(const PropostaGiorni& proposta) {
    Stato dopo{righe_, rigaCorrente_, std::pair(0, CalcoloSoste::SosteItinerario)};
    auto sosta = proposta.soste.begin();
    for (Tappa& tappa : dopo.righe) {
        if (!tappa.localita.isEmpty() && sosta != proposta.soste.end()) tappa.sosta = *sosta++;
    }
    Stato prima = StatoPresente(true);
    Mostra(std::move(dopo));
    storia_.Ricorda(PassoVerso(u"soste al %1%"_s.arg(proposta.percento), std::move(prima)));
}

std::optional<std::vector<Alternativa>> Documento::Confronta(Progress& progress) {
    return Alternative(campi_, orario_, righe_, GuidaDelle(righe_), progress);
}

EsitoCalcolo Documento::CalcolaCon(Progress& progress, SeNonRiesce altrimenti) {
    return CalcolaCronovia(campi_, orario_, righe_, GuidaDelle(righe_), progress, altrimenti);
}

QString Documento::Calcola(Progress& progress) {
    EsitoCalcolo esito = CalcolaCon(progress, SeNonRiesce::Cerca);
    CorreggiOrari();
    cronovia_ = std::move(esito.cronovia);
    Decade();
    ricerca_ = std::move(esito.ricerca);
    vale_ = cronovia_.has_value();
    if (vale_) giornate_ = cronovia::Giornate(*cronovia_, *campi_.dataInizio);
    return esito.messaggio;
}

void Documento::CalcolaDalVivo() {
    if (cronovia_ || ultima_ || !impedimento_.isEmpty() || NumeroTappe(righe_) < 2) return;
    Progress progress;
    try {
        ultima_ = CalcolaCon(progress, SeNonRiesce::Lascia).cronovia;
        giornate_ = cronovia::Giornate(*ultima_, *campi_.dataInizio);
    } catch (const Failure& failure) {
        impedimento_ = failure.Message();
    }
    ++versione_;
}

void Documento::Ricomponi() {
    if (cronovia_ && vale_) ultima_ = std::move(cronovia_);
    cronovia_.reset();
    if (!ultima_) Decade();
    RicalcolaTempi();
}

QString Documento::Nome() const { return u"%1 (%2)"_s.arg(caricati_.localita.trimmed(), codice_); }

// Within the transaction that writes: nothing comes between what is compared and what is written.
void Documento::RifiutaSeDiversa(const std::optional<MetaMemorizzata>& attesa) {
    std::optional<MetaMemorizzata> adesso = LeggiMemorizzata(sessione_.Archivio(), letta_.meta.codice);
    if (adesso != attesa) throw MetaCambiata(letta_, std::move(adesso));
}

QString Documento::ScriviCampi(const Salvataggio& deciso) {
    const Salvataggio adesso = DecidiSalvataggio();
    if (adesso.nuova != deciso.nuova) {
        throw Failure(u"Nel frattempo un'altra finestra ha salvato o cancellato la mèta «%1»: riprova."_s.arg(
            campi_.localita.trimmed()));
    }
    return SalvaMeta(sessione_.Archivio(), campi_, adesso);
}

EsitoMemorizzazione Documento::ScriviTappe(const QString& codice, Progress& progress) {
    return MemorizzaTappeItinerario(sessione_.Archivio(), codice, righe_, orario_, progress);
}

// What was written is read within the same transaction: nothing can fail after it was committed.
void Documento::Concludi(Transaction& transaction, const QString& codice) {
    MetaAperta salvata = sessione_.ApriMeta(codice);
    transaction.Commit();
    Metti(std::move(salvata));
    codice_ = codice;
    CorreggiOrari();
}

void Documento::SalvaCampi(const Salvataggio& deciso) {
    Transaction transaction(sessione_.Archivio());
    if (!campi_.codice.isEmpty()) RifiutaSeDiversa(letta_);
    Concludi(transaction, ScriviCampi(deciso));
}

EsitoMemorizzazione Documento::SalvaTappe(Progress& progress) {
    Transaction transaction(sessione_.Archivio());
    RifiutaSeDiversa(letta_);
    const EsitoMemorizzazione esito = ScriviTappe(codice_, progress);
    RigheItinerario scritte = TappeMemorizzate(sessione_.Archivio(), codice_);
    transaction.Commit();
    caricate_ = righe_;
    letta_.tappe = std::move(scritte);
    return esito;
}

EsitoMemorizzazione Documento::SalvaTutto(const Salvataggio& deciso, Progress& progress) {
    Transaction transaction(sessione_.Archivio());
    if (!campi_.codice.isEmpty()) RifiutaSeDiversa(letta_);
    EsitoMemorizzazione esito;
    if (TappeModificate()) esito = ScriviTappe(codice_, progress);
    Concludi(transaction, CampiModificati() ? ScriviCampi(deciso) : codice_);
    return esito;
}

EsitoMemorizzazione Documento::Sovrascrivi(const MetaCambiata& vista, Progress& progress) {
    Transaction transaction(sessione_.Archivio());
    RifiutaSeDiversa(vista.Adesso());
    Archive& archivio = sessione_.Archivio();
    const QString codice =
        vista.Persa() ? InserisciMeta(archivio, campi_) : SalvaMeta(archivio, campi_, {false, letta_.meta.codice});
    const EsitoMemorizzazione esito = ScriviTappe(codice, progress);
    Concludi(transaction, codice);
    return esito;
}

void Documento::CancellaTappe(Progress& progress) {
    sessione_.Archivio().KeepCopy(u"prima di cancellare"_s);
    Transaction transaction(sessione_.Archivio());
    RifiutaSeDiversa(letta_);
    MemorizzaTappeItinerario(sessione_.Archivio(), codice_, {}, orario_, progress);
    transaction.Commit();
}

MetaCancellata Documento::Cancella(Progress& progress) {
    sessione_.Archivio().KeepCopy(u"prima di cancellare"_s);
    Transaction transaction(sessione_.Archivio());
    RifiutaSeDiversa(letta_);
    MetaCancellata cancellata = CancellaMeta(sessione_.Archivio(), codice_, progress);
    transaction.Commit();
    return cancellata;
}

}  // namespace cronovia
