// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/lettore_navigatore.h"

#include <minizip/unzip.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <memory>

#include "calendar/testo.h"
#include "files/righe_testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimaProfondita = 64;
constexpr qint64 kByteDaGuardare = 4096;

// Takes points, and refuses what no map has.
class Raccolta {
  public:
    explicit Raccolta(QString nomeFile) : nome_(std::move(nomeFile)) {}

    void Rotta(const PuntoLetto& punto) { Metti(file_.rotta, Ripulito(punto)); }
    void Luogo(const PuntoLetto& punto) { Metti(file_.luoghi, Ripulito(punto)); }
    void Traccia(const Posizione& posizione) { Metti(file_.traccia, posizione); }

    [[nodiscard]] Posizione Leggi(QStringView latitudine, QStringView longitudine) const {
        bool prima = false;
        bool seconda = false;
        const Posizione posizione{latitudine.trimmed().toDouble(&prima), longitudine.trimmed().toDouble(&seconda)};
        const bool nelMondo = std::abs(posizione.latitudine) <= 90 && std::abs(posizione.longitudine) <= 180;
        if (!prima || !seconda || !nelMondo) {
            throw Failure(u"Nel file %1 le coordinate «%2, %3» non sono di nessun luogo."_s.arg(
                nome_, Accorciato(Visibile(latitudine.toString()), 20),
                Accorciato(Visibile(longitudine.toString()), 20)));
        }
        return posizione;
    }
    [[noreturn]] void Guasto(const QString& perche) const {
        throw Failure(u"Il file %1 non si può leggere: %2."_s.arg(nome_, perche));
    }

    [[nodiscard]] FileNavigatore Raccolti() { return std::move(file_); }

  private:
    static QString Ripulito(const QString& testo) { return Visibile(testo).simplified(); }
    static PuntoLetto Ripulito(const PuntoLetto& punto) {
        return {Ripulito(punto.nome), punto.posizione, Ripulito(punto.tipo), Ripulito(punto.note)};
    }

    template <typename Punto>
    void Metti(std::vector<Punto>& punti, Punto punto) {
        if (punti.size() == kMassimiPuntiNavigatore) {
            Guasto(u"ha più di %1 punti"_s.arg(Raggruppa(static_cast<std::int64_t>(kMassimiPuntiNavigatore))));
        }
        punti.push_back(std::move(punto));
    }

    QString nome_;
    FileNavigatore file_;
};

// What both kinds of XML share: no definitions, no depth without end.
class LettoreXml {
  public:
    LettoreXml(QIODevice& device, Raccolta& raccolta) : xml_(&device), raccolta_(raccolta) {
        xml_.setEntityExpansionLimit(0);
    }
    LettoreXml(const LettoreXml&) = delete;
    LettoreXml& operator=(const LettoreXml&) = delete;
    virtual ~LettoreXml() = default;

    void Leggi() {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
                case QXmlStreamReader::DTD:
                    raccolta_.Guasto(u"contiene definizioni che un percorso non ha"_s);
                case QXmlStreamReader::StartElement:
                    if (++profondita_ > kMassimaProfondita) raccolta_.Guasto(u"è annidato troppo in profondità"_s);
                    testo_.clear();
                    Comincia(xml_.name());
                    break;
                case QXmlStreamReader::EndElement:
                    --profondita_;
                    Finisce(xml_.name());
                    testo_.clear();
                    break;
                case QXmlStreamReader::Characters:
                    Caratteri(xml_.text());
                    break;
                default:
                    break;
            }
        }
        if (xml_.hasError()) raccolta_.Guasto(u"è rovinato alla riga %1"_s.arg(xml_.lineNumber()));
    }

  protected:
    virtual void Comincia(QStringView elemento) = 0;
    virtual void Finisce(QStringView elemento) = 0;
    virtual void Caratteri(QStringView testo) {
        constexpr qsizetype kMassimoTesto = 100'000;
        if (testo_.size() < kMassimoTesto) testo_ += testo;
    }

    QXmlStreamReader xml_;  // NOLINT: the readers below are this one's parts
    Raccolta& raccolta_;    // NOLINT
    QString testo_;         // NOLINT: within the element
    int profondita_ = 0;    // NOLINT
};

class LettoreGpx : public LettoreXml {
  public:
    using LettoreXml::LettoreXml;

  protected:
    void Comincia(QStringView elemento) override {
        const bool traccia = elemento == u"trkpt";
        if (!traccia && elemento != u"wpt" && elemento != u"rtept") return;
        const QXmlStreamAttributes attributi = xml_.attributes();
        punto_ = {{}, raccolta_.Leggi(attributi.value("lat"_L1), attributi.value("lon"_L1))};
        dentro_ = profondita_;
    }
    void Finisce(QStringView elemento) override {
        if (profondita_ == dentro_) Dettaglio(elemento);
        if (profondita_ + 1 != dentro_) return;
        dentro_ = -1;
        if (elemento == u"rtept") raccolta_.Rotta(punto_);
        if (elemento == u"wpt") raccolta_.Luogo(punto_);
        if (elemento == u"trkpt") raccolta_.Traccia(punto_.posizione);
    }

  private:
    // Of its two notes the first one counts, and a kind before a symbol.
    void Dettaglio(QStringView elemento) {
        if (elemento == u"name") punto_.nome = testo_;
        if ((elemento == u"desc" || elemento == u"cmt") && punto_.note.isEmpty()) punto_.note = testo_;
        if (elemento == u"type" || (elemento == u"sym" && punto_.tipo.isEmpty())) punto_.tipo = testo_;
    }

    PuntoLetto punto_;
    int dentro_ = -1;  // depth of the point that is being read
};

class LettoreKml : public LettoreXml {
  public:
    using LettoreXml::LettoreXml;

  protected:
    void Comincia(QStringView elemento) override {
        if (elemento == u"Placemark") {
            dentro_ = profondita_;
            letto_ = {};
            punto_.reset();
        }
        if (elemento == u"Point" || elemento == u"LineString") linea_ = elemento == u"LineString";
    }
    void Caratteri(QStringView testo) override {
        testo_ += testo;
        if (testo_.size() > kMassimeCoordinate) raccolta_.Guasto(u"una sua riga non finisce mai"_s);
    }
    void Finisce(QStringView elemento) override {
        if (elemento == u"name" && profondita_ == dentro_) letto_.nome = testo_;
        if (elemento == u"description" && profondita_ == dentro_) letto_.note = testo_;
        if (elemento == u"coordinates") Coordinate();
        if (elemento == u"coord") Terna(testo_.simplified().replace(u' ', u','), true);  // of a recorded track
        if (elemento != u"Placemark") return;
        if (punto_) raccolta_.Luogo({letto_.nome, *punto_, {}, letto_.note});
        dentro_ = -1;
    }

  private:
    static constexpr qsizetype kMassimeCoordinate = 50'000'000;

    void Coordinate() {
        const QString testo = testo_.simplified();
        for (const QStringView terna : QStringView(testo).tokenize(u' ', Qt::SkipEmptyParts)) Terna(terna, linea_);
    }
    void Terna(QStringView terna, bool traccia) {
        const QList<QStringView> numeri = terna.split(u',');
        if (numeri.size() < 2) raccolta_.Guasto(u"delle coordinate sono incomplete"_s);
        const Posizione posizione = raccolta_.Leggi(numeri[1], numeri[0]);
        if (traccia) {
            raccolta_.Traccia(posizione);
        } else {
            punto_ = posizione;
        }
    }

    PuntoLetto letto_;
    std::optional<Posizione> punto_;
    bool linea_ = false;
    int dentro_ = -1;
};

// A point for each line: longitude and latitude in hundred thousandths of a degree, name, kind.
bool LeggiItn(QIODevice& device, Raccolta& raccolta) {
    RigheTesto righe(device);
    int lette = 0;
    while (righe.Avanza()) {
        const QString testo = righe.Testo().trimmed();
        if (testo.isEmpty()) continue;
        const QStringList campi = testo.split(u'|');
        bool est = false;
        bool nord = false;
        const int longitudine = campi.value(0).trimmed().toInt(&est);
        const int latitudine = campi.value(1).trimmed().toInt(&nord);
        if (campi.size() < 3 || !est || !nord) {
            if (lette == 0) return false;
            raccolta.Guasto(u"la riga «%1» non è di una tappa"_s.arg(Accorciato(Visibile(testo), 40)));
        }
        ++lette;
        constexpr double kGrado = 100'000;
        raccolta.Rotta({campi[2], raccolta.Leggi(QString::number(latitudine / kGrado, 'f', 5),
                                                 QString::number(longitudine / kGrado, 'f', 5))});
    }
    return lette > 0;
}

class LettoreGeoJson {
  public:
    explicit LettoreGeoJson(Raccolta& raccolta) : raccolta_(raccolta) {}

    // `detto` has what is told of the object, but where it lies.
    void Oggetto(const QJsonObject& oggetto, const PuntoLetto& detto) {
        const QString tipo = oggetto[u"type"].toString();
        if (tipo == u"FeatureCollection"_s) {
            const QJsonArray elementi = oggetto[u"features"].toArray();
            for (const auto& elemento : elementi) Oggetto(elemento.toObject(), {});
        } else if (tipo == u"Feature"_s) {
            const QJsonObject proprieta = oggetto[u"properties"].toObject();
            Oggetto(oggetto[u"geometry"].toObject(), {Primo(proprieta, {u"name"_s, u"nome"_s}),
                                                      {},
                                                      Primo(proprieta, {u"type"_s, u"tipo"_s, u"category"_s}),
                                                      Primo(proprieta, {u"description"_s, u"desc"_s, u"note"_s})});
        } else if (tipo == u"GeometryCollection"_s) {
            const QJsonArray elementi = oggetto[u"geometries"].toArray();
            for (const auto& elemento : elementi) Oggetto(elemento.toObject(), detto);
        } else if (tipo == u"Point"_s) {
            raccolta_.Luogo({detto.nome, Coppia(oggetto[u"coordinates"]), detto.tipo, detto.note});
        } else if (tipo == u"LineString"_s) {
            Linea(oggetto[u"coordinates"].toArray());
        } else if (tipo == u"MultiLineString"_s) {
            const QJsonArray linee = oggetto[u"coordinates"].toArray();
            for (const auto& linea : linee) Linea(linea.toArray());
        }
    }

  private:
    static QString Primo(const QJsonObject& proprieta, const QStringList& nomi) {
        QString testo;
        for (const QString& nome : nomi) testo = testo.isEmpty() ? proprieta[nome].toString() : testo;
        return testo;
    }
    [[nodiscard]] Posizione Coppia(const QJsonValue& valore) const {
        const QJsonArray coppia = valore.toArray();
        const auto testo = [&](int i) {
            return coppia[i].isDouble() ? QString::number(coppia[i].toDouble(), 'f', 7) : u"?"_s;
        };
        return raccolta_.Leggi(testo(1), testo(0));
    }
    void Linea(const QJsonArray& punti) {
        for (const auto& punto : punti) raccolta_.Traccia(Coppia(punto));
    }

    Raccolta& raccolta_;
};

// The map of a packed file, which is the first one in it whose name says so.
QByteArray Spacchettato(const QString& path, const Raccolta& raccolta) {
    const std::unique_ptr<void, int (*)(unzFile)> zip(unzOpen64(QFile::encodeName(path).constData()), &unzClose);
    if (!zip) raccolta.Guasto(u"il pacchetto è rovinato"_s);
    for (int esito = unzGoToFirstFile(zip.get()); esito == UNZ_OK; esito = unzGoToNextFile(zip.get())) {
        constexpr uLong kMassimoNome = 1024;
        unz_file_info64 info{};
        QByteArray nome(kMassimoNome, '\0');
        if (unzGetCurrentFileInfo64(zip.get(), &info, nome.data(), kMassimoNome, nullptr, 0, nullptr, 0) != UNZ_OK)
            break;
        if (!QByteArray(nome.constData()).toLower().endsWith(".kml")) continue;
        if (unzOpenCurrentFile(zip.get()) != UNZ_OK) break;
        QByteArray dati;
        QByteArray pezzo(1 << 16, '\0');
        int letti = 0;
        while ((letti = unzReadCurrentFile(zip.get(), pezzo.data(), static_cast<unsigned>(pezzo.size()))) > 0) {
            dati.append(pezzo.constData(), letti);
            if (dati.size() > kMassimiByteNavigatore) raccolta.Guasto(u"spacchettato è troppo grande"_s);
        }
        if (letti < 0 || unzCloseCurrentFile(zip.get()) != UNZ_OK) raccolta.Guasto(u"il pacchetto è rovinato"_s);
        return dati;
    }
    raccolta.Guasto(u"nel pacchetto non c'è nessuna mappa"_s);
}

// The name of the first element; empty when it is no XML. What cannot be decoded all the same is taken by its look.
QString Radice(QIODevice& device) {
    const QByteArray inizio = device.peek(kByteDaGuardare);
    QXmlStreamReader xml(inizio);
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::StartElement) {
        if (xml.tokenType() == QXmlStreamReader::DTD) return u"!"_s;
    }
    if (xml.tokenType() == QXmlStreamReader::StartElement) return xml.name().toString();
    return inizio.contains("<gpx") ? u"gpx"_s : inizio.contains("<kml") ? u"kml"_s : QString();
}

bool LeggiXml(QIODevice& device, Raccolta& raccolta) {
    const QString radice = Radice(device);
    if (radice == u"!"_s) raccolta.Guasto(u"contiene definizioni che un percorso non ha"_s);
    if (radice == u"gpx"_s) {
        LettoreGpx(device, raccolta).Leggi();
    } else if (radice == u"kml"_s) {
        LettoreKml(device, raccolta).Leggi();
    } else {
        return false;
    }
    return true;
}

bool LeggiGeoJson(QIODevice& device, Raccolta& raccolta) {
    QJsonParseError errore;
    const std::unique_ptr<QIODevice> utf8 = ComeUtf8(device);
    const QJsonDocument documento = QJsonDocument::fromJson((utf8 ? *utf8 : device).readAll(), &errore);
    if (errore.error != QJsonParseError::NoError) raccolta.Guasto(u"è rovinato"_s);
    if (!documento.object().contains(u"type")) return false;
    LettoreGeoJson(raccolta).Oggetto(documento.object(), {});
    return true;
}

// The first visible bytes. Those of UTF-16 are those of plain text but for its mark and zeros.
QByteArray Inizio(QIODevice& file) {
    QByteArray inizio = file.peek(kByteDaGuardare);
    for (const char* segno : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        if (inizio.startsWith(segno)) inizio.remove(0, qstrlen(segno));
    }
    return inizio.replace('\0', QByteArrayView()).trimmed();
}

bool Riconosciuto(const QString& path, QIODevice& file, Raccolta& raccolta) {
    const QByteArray inizio = Inizio(file);
    if (inizio.startsWith("PK\x03\x04")) {
        QByteArray dati = Spacchettato(path, raccolta);
        QBuffer buffer(&dati);
        buffer.open(QIODevice::ReadOnly);
        return LeggiXml(buffer, raccolta);
    }
    if (inizio.startsWith('<')) return LeggiXml(file, raccolta);
    if (inizio.startsWith('{')) return LeggiGeoJson(file, raccolta);
    return LeggiItn(file, raccolta);
}

}  // namespace

std::optional<FileNavigatore> LeggiNavigatore(QIODevice& device, const QString& path) {
    Raccolta raccolta(QDir::toNativeSeparators(path));
    if (device.size() > kMassimiByteNavigatore) raccolta.Guasto(u"è troppo grande"_s);
    if (!Riconosciuto(path, device, raccolta)) return std::nullopt;
    return raccolta.Raccolti();
}

std::optional<FileNavigatore> LeggiNavigatore(const QString& path) {
    return LeggiNavigatore(*ApriInLettura(path), path);
}

}  // namespace cronovia
