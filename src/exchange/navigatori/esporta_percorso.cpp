// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/navigatori/esporta_percorso.h"

#include <QDir>
#include <QFileInfo>
#include <set>

#include "calendar/testo.h"
#include "files/file_intero.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The stop, and for a ferry its road.
QString DescrizioneTappa(const Tappa& tappa) {
    QStringList parti;
    if (!tappa.numStrada.isEmpty()) parti += tappa.numStrada;
    if (!tappa.sosta.Nulla() || tappa.fineGiorno) parti += u"sosta "_s + TestoSosta(tappa.sosta, tappa.fineGiorno);
    return parti.join(u", "_s);
}

QString DescrizioneVoce(const VoceGuida& voce) {
    const QString dove = voce.localita + u": "_s + voce.tipo;
    return voce.tempo.Nulla() ? dove : dove + u", "_s + TestoTempoVisita(voce.tempo);
}

// What of a trip goes into the files.
class RaccoltaPercorso {
  public:
    explicit RaccoltaPercorso(const RichiestaEsportaPercorso& richiesta) : richiesta_(richiesta) {}

    PercorsoDaScrivere Tratto(const QString& nome, int prima, int ultima, EsitoEsportaPercorso& esito) {
        PercorsoDaScrivere percorso{nome, {}, {}};
        std::set<QString> conGuida;
        for (int i = prima; i <= ultima; ++i) {
            const Tappa& tappa = richiesta_.tappe[static_cast<std::size_t>(i)];
            const PosizioneTappa& dove = richiesta_.posizioni[static_cast<std::size_t>(i)];
            if (tappa.localita.isEmpty()) continue;
            if (!dove.Certa()) {
                if (!esito.lasciate.contains(tappa.localita)) esito.lasciate += tappa.localita;
                continue;
            }
            percorso.tappe.push_back({tappa.localita, DescrizioneTappa(tappa), *dove.posizione});
            if (!conGuida.insert(tappa.localita).second) continue;
            for (const VoceGuida& voce : *richiesta_.guida.Voci(tappa.localita)) {
                percorso.guida.push_back({voce.descrizione, DescrizioneVoce(voce), *dove.posizione});
            }
        }
        return percorso;
    }

  private:
    const RichiestaEsportaPercorso& richiesta_;
};

struct FilePercorso {
    QString path;
    PercorsoDaScrivere percorso;
};

std::vector<FilePercorso> FileDaScrivere(const RichiestaEsportaPercorso& richiesta, EsitoEsportaPercorso& esito) {
    RaccoltaPercorso raccolta(richiesta);
    if (richiesta.giorni.empty()) {
        const int ultima = static_cast<int>(richiesta.tappe.size()) - 1;
        return {{richiesta.path, raccolta.Tratto(richiesta.nome, 0, ultima, esito)}};
    }
    std::vector<FilePercorso> file;
    for (std::size_t g = 0; g < richiesta.giorni.size(); ++g) {
        const auto& [prima, ultima] = richiesta.giorni[g];
        const QString numero = Zero(static_cast<int>(g) + 1, 2);
        PercorsoDaScrivere percorso =
            raccolta.Tratto(u"%1 - giorno %2"_s.arg(richiesta.nome, numero), prima, ultima, esito);
        if (percorso.tappe.size() < 2) continue;
        const QString nome = u"giorno-%1.%2"_s.arg(numero, Estensione(richiesta.formato));
        file.push_back({QDir(richiesta.path).filePath(nome), std::move(percorso)});
    }
    return file;
}

void PreparaCartella(const QString& path) {
    if (QFileInfo(path).isDir() || QDir().mkpath(path)) return;
    throw Failure(u"La cartella %1 non si può creare."_s.arg(QDir::toNativeSeparators(path)));
}

}  // namespace

// All are written beside their places before the first one is laid there.
EsitoEsportaPercorso EsportaPercorso(const RichiestaEsportaPercorso& richiesta) {
    EsitoEsportaPercorso esito;
    const std::vector<FilePercorso> file = FileDaScrivere(richiesta, esito);
    if (file.empty() || file.front().percorso.tappe.empty()) {
        throw Failure(
            u"Impossibile esportare il percorso: di nessuna località si conosce la posizione. Si può indicare con: "
            "cronovia luoghi CODICE --conferma LOCALITÀ LATITUDINE LONGITUDINE"_s);
    }
    for (const FilePercorso& uno : file) {
        RifiutaFileEsistente(uno.path, richiesta.sovrascrivi);
        RifiutaFileArchivio(uno.path, richiesta.archive.Path());
    }
    if (!richiesta.giorni.empty()) PreparaCartella(richiesta.path);
    std::vector<std::unique_ptr<FileIntero>> scritti;
    for (const FilePercorso& uno : file) {
        scritti.push_back(std::make_unique<FileIntero>(uno.path));
        scritti.back()->Scrivi(ScriviPercorso(uno.percorso, richiesta.formato));
        scritti.back()->Completa();
        esito.file += uno.path;
        esito.punti += static_cast<int>(uno.percorso.tappe.size());
        if (richiesta.formato != FormatoPercorso::Itn) esito.guida += static_cast<int>(uno.percorso.guida.size());
    }
    for (const auto& uno : scritti) uno->Chiudi();
    return esito;
}

QString TestoEsito(const EsitoEsportaPercorso& esito) {
    QStringList righe;
    for (const QString& file : esito.file) righe += u"Scritto: "_s + QDir::toNativeSeparators(file);
    righe += u"Tappe: %1; voci della guida: %2."_s.arg(esito.punti).arg(esito.guida);
    if (!esito.lasciate.isEmpty()) {
        righe += u"Senza una posizione certa, e quindi lasciate fuori (%1): %2."_s.arg(esito.lasciate.size())
                     .arg(esito.lasciate.join(u", "_s));
    }
    return righe.join(u'\n');
}

}  // namespace cronovia
