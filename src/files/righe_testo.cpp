// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/righe_testo.h"

#include <QIODevice>
#include <QStringConverter>
#include <algorithm>
#include <optional>

#include "files/windows1252.h"

namespace cronovia {

namespace {

constexpr qsizetype kBlocco = 32 * 1024;
constexpr qint64 kAssaggio = 4096;
constexpr char16_t kSegno = 0xFEFF;  // the mark at the start of a Unicode file

// A device that holds UTF-16, as UTF-8.
class DaUtf16 : public QIODevice {
  public:
    DaUtf16(QIODevice& device, QStringConverter::Encoding codifica) : device_(device), da_(codifica) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }

  protected:
    qint64 readData(char* dati, qint64 massimo) override {
        while (pronti_.isEmpty()) {
            QByteArray byte(kBlocco, Qt::Uninitialized);
            const qint64 letti = device_.read(byte.data(), byte.size());
            if (letti < 0) setErrorString(device_.errorString());
            if (letti <= 0) return letti;
            byte.truncate(letti);
            const QString testo = da_.decode(byte);
            pronti_ = in_.encode(testo);
        }
        const auto quanti = std::min<qint64>(massimo, pronti_.size());
        std::copy_n(pronti_.constData(), quanti, dati);
        pronti_.remove(0, quanti);
        return quanti;
    }
    qint64 writeData(const char* /*dati*/, qint64 /*quanti*/) override { return -1; }

  private:
    QIODevice& device_;
    QStringDecoder da_;
    QStringEncoder in_{QStringConverter::Utf8};
    QByteArray pronti_;
};

// Without a mark, UTF-16 is told by the zeros in every other byte of plain letters.
std::optional<QStringConverter::Encoding> Utf16(QIODevice& device) {
    const QByteArray inizio = device.peek(kAssaggio);
    if (inizio.startsWith("\xFF\xFE")) return QStringConverter::Utf16LE;
    if (inizio.startsWith("\xFE\xFF")) return QStringConverter::Utf16BE;
    qsizetype le = 0;
    qsizetype be = 0;
    for (qsizetype i = 0; i + 1 < inizio.size(); i += 2) {
        if (inizio[i] != 0 && inizio[i + 1] == 0) ++le;
        if (inizio[i] == 0 && inizio[i + 1] != 0) ++be;
    }
    const qsizetype meta = inizio.size() / 4;
    if (le > meta) return QStringConverter::Utf16LE;
    if (be > meta) return QStringConverter::Utf16BE;
    return std::nullopt;
}

QString Decodifica(QByteArrayView byte) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString testo = utf8.decode(byte);
    if (utf8.hasError()) return DaWindows1252(byte);
    return testo;
}

QString Pulisci(QString testo) {
    testo.remove(QChar(kSegno));
    for (QChar& c : testo) {
        if (c != u'\t' && (c.isSpace() || c.category() == QChar::Other_Control)) c = u' ';
    }
    return testo.normalized(QString::NormalizationForm_C);
}

}  // namespace

std::unique_ptr<QIODevice> ComeUtf8(QIODevice& device) {
    const auto codifica = Utf16(device);
    if (!codifica) return nullptr;
    return std::make_unique<DaUtf16>(device, *codifica);
}

RigheTesto::RigheTesto(QIODevice& device) : utf8_(ComeUtf8(device)), righe_(utf8_ ? *utf8_ : device) {}

RigheTesto::~RigheTesto() = default;

bool RigheTesto::Avanza() {
    const bool altra = righe_.Avanza();
    testo_ = Pulisci(Decodifica(righe_.Riga()));
    return altra;
}

}  // namespace cronovia
