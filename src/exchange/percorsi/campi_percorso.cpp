// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/percorsi/campi_percorso.h"

#include <algorithm>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCifreDiMigliaia = 3;

QString TestoDelCampo(QStringView testo) {
    QString campo = testo.toString().simplified();
    if (campo.size() < 2 || !campo.startsWith(u'"') || !campo.endsWith(u'"')) return campo;
    return campo.sliced(1, campo.size() - 2).replace(u"\"\""_s, u"\""_s).trimmed();
}

// Whether a point at this place stands between thousands: three digits follow, and no zero leads.
bool DiMigliaia(QStringView testo, qsizetype punto) {
    const QStringView dopo = testo.sliced(punto + 1);
    const auto* fine = std::find_if_not(dopo.begin(), dopo.end(), &Cifra);
    return fine - dopo.begin() == kCifreDiMigliaia && testo.front() != u'0';
}

}  // namespace

CampiPercorso SeparaCampi(QStringView riga) {
    CampiPercorso colonne;
    for (int numero = 1; numero <= CampiPercorso::kMassimo && !riga.isEmpty(); ++numero) {
        const qsizetype tab = riga.indexOf(u'\t');
        colonne[numero] = TestoDelCampo(tab < 0 ? riga : riga.first(tab));
        riga = tab < 0 ? QStringView() : riga.sliced(tab + 1);
    }
    return colonne;
}

qsizetype Trova(QStringView testo, QStringView parola) { return testo.indexOf(parola, 0, Qt::CaseInsensitive); }

bool Contiene(QStringView testo, QStringView parola) { return Trova(testo, parola) >= 0; }

QStringView PrimaParola(QStringView testo) { return Fino(testo, u' '); }

QStringView DopoLaPrimaParola(QStringView testo) { return testo.sliced(PrimaParola(testo).size()).trimmed(); }

QStringView Fino(QStringView testo, QChar segno) {
    const qsizetype indice = testo.indexOf(segno);
    return indice < 0 ? testo : testo.first(indice);
}

std::optional<int> LeggiKm(QStringView campo) {
    if (campo.isEmpty() || !Cifra(campo.front())) return std::nullopt;
    QString numero;
    for (qsizetype i = 0; i < campo.size(); ++i) {
        if (campo[i] != u'.' || !DiMigliaia(campo, i)) numero += campo[i];
    }
    return ValoreNumerico(numero);
}

int KmConUnita(QStringView campo) { return Contiene(campo, u"km") ? LeggiKm(campo).value_or(0) : 0; }

bool TuttoMaiuscolo(QStringView testo) { return testo == Maiuscolo(testo); }

}  // namespace cronovia
