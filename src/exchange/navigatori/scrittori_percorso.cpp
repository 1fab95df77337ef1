// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/navigatori/scrittori_percorso.h"

#include <QXmlStreamWriter>
#include <cmath>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// What XML cannot hold is shown as elsewhere.
void Elemento(QXmlStreamWriter& xml, const QString& nome, const QString& testo) {
    if (!testo.isEmpty()) xml.writeTextElement(nome, Visibile(testo));
}

void PuntoGpx(QXmlStreamWriter& xml, const QString& elemento, const PuntoPercorso& punto) {
    xml.writeStartElement(elemento);
    xml.writeAttribute(u"lat"_s, TestoGradi(punto.posizione.latitudine));
    xml.writeAttribute(u"lon"_s, TestoGradi(punto.posizione.longitudine));
    Elemento(xml, u"name"_s, punto.nome);
    Elemento(xml, u"desc"_s, punto.descrizione);
    xml.writeEndElement();
}

void ScriviGpx(QXmlStreamWriter& xml, const PercorsoDaScrivere& percorso) {
    xml.writeStartElement(u"gpx"_s);
    xml.writeDefaultNamespace(u"http://www.topografix.com/GPX/1/1"_s);
    xml.writeAttribute(u"version"_s, u"1.1"_s);
    xml.writeAttribute(u"creator"_s, u"Cronovia"_s);
    xml.writeStartElement(u"metadata"_s);
    Elemento(xml, u"name"_s, percorso.nome);
    xml.writeEndElement();
    for (const PuntoPercorso& punto : percorso.guida) PuntoGpx(xml, u"wpt"_s, punto);
    xml.writeStartElement(u"rte"_s);
    Elemento(xml, u"name"_s, percorso.nome);
    for (const PuntoPercorso& punto : percorso.tappe) PuntoGpx(xml, u"rtept"_s, punto);
    xml.writeEndElement();
    xml.writeEndElement();
}

QString CoordinateKml(const Posizione& p) { return TestoGradi(p.longitudine) + u',' + TestoGradi(p.latitudine); }

void CartellaKml(QXmlStreamWriter& xml, const QString& nome, const std::vector<PuntoPercorso>& punti) {
    if (punti.empty()) return;
    xml.writeStartElement(u"Folder"_s);
    Elemento(xml, u"name"_s, nome);
    for (const PuntoPercorso& punto : punti) {
        xml.writeStartElement(u"Placemark"_s);
        Elemento(xml, u"name"_s, punto.nome);
        Elemento(xml, u"description"_s, punto.descrizione);
        xml.writeStartElement(u"Point"_s);
        xml.writeTextElement(u"coordinates"_s, CoordinateKml(punto.posizione));
        xml.writeEndElement();
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void ScriviKml(QXmlStreamWriter& xml, const PercorsoDaScrivere& percorso) {
    xml.writeStartElement(u"kml"_s);
    xml.writeDefaultNamespace(u"http://www.opengis.net/kml/2.2"_s);
    xml.writeStartElement(u"Document"_s);
    Elemento(xml, u"name"_s, percorso.nome);
    CartellaKml(xml, u"Tappe"_s, percorso.tappe);
    CartellaKml(xml, u"Guida"_s, percorso.guida);
    if (percorso.tappe.size() > 1) {
        QStringList coordinate;
        for (const PuntoPercorso& punto : percorso.tappe) coordinate += CoordinateKml(punto.posizione);
        xml.writeStartElement(u"Placemark"_s);
        Elemento(xml, u"name"_s, u"Percorso"_s);
        xml.writeStartElement(u"LineString"_s);
        xml.writeTextElement(u"tessellate"_s, u"1"_s);
        xml.writeTextElement(u"coordinates"_s, coordinate.join(u' '));
        xml.writeEndElement();
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
}

// longitude|latitude|name|what: 4 departure, 0 on the way, 2 destination; degrees times 100,000.
QByteArray ScriviItn(const PercorsoDaScrivere& percorso) {
    QString testo;
    for (std::size_t i = 0; i < percorso.tappe.size(); ++i) {
        const PuntoPercorso& punto = percorso.tappe[i];
        const QStringView genere = i == 0 ? u"4" : i + 1 == percorso.tappe.size() ? u"2" : u"0";
        const auto gradi = [](double g) { return QString::number(std::lround(g * 100000)); };
        testo += gradi(punto.posizione.longitudine) + u'|' + gradi(punto.posizione.latitudine) + u'|' +
                 Visibile(punto.nome).replace(u'|', u' ') + u'|' + genere.toString() + u"|\r\n"_s;
    }
    return testo.toUtf8();
}

}  // namespace

QByteArray ScriviPercorso(const PercorsoDaScrivere& percorso, FormatoPercorso formato) {
    if (formato == FormatoPercorso::Itn) return ScriviItn(percorso);
    QByteArray dati;
    QXmlStreamWriter xml(&dati);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    formato == FormatoPercorso::Gpx ? ScriviGpx(xml, percorso) : ScriviKml(xml, percorso);
    xml.writeEndDocument();
    return dati;
}

QString Estensione(FormatoPercorso formato) {
    switch (formato) {
        case FormatoPercorso::Gpx:
            return u"gpx"_s;
        case FormatoPercorso::Kml:
            return u"kml"_s;
        case FormatoPercorso::Itn:
            break;
    }
    return u"itn"_s;
}

}  // namespace cronovia
