#include "CsvYazici.h"

#include <QSaveFile>
#include <algorithm>
#include <string>

#include "CsvYazimi.h"
#include "TabloMetni.h"

using namespace Qt::StringLiterals;

namespace {

// Beside the target until it is whole.
class CsvYazıcı : public ÇizelgeHedefi {
  public:
    CsvYazıcı(const QString& yol, const QList<ÇizelgeSütunu>& sütunlar) : m_dosya(yol), m_sütunlar(sütunlar) {}

    YazmaSonucu Aç(const QString& üstYazı) override {
        if (!m_dosya.open(QIODevice::WriteOnly)) return m_ilkHata = Hata();
        m_birikmiş = CsvBaşı;
        if (!üstYazı.isEmpty()) {
            DeğerEkle(üstYazı);
            m_birikmiş += CsvSatırSonu;
        }
        QList<ÇizelgeDeğeri> başlıklar;
        for (const ÇizelgeSütunu& sütun : std::as_const(m_sütunlar)) başlıklar.emplaceBack(sütun.Başlık);
        return SatırEkle(başlıklar);
    }

    YazmaSonucu SatırEkle(const QList<ÇizelgeDeğeri>& değerler) override {
        constexpr std::size_t parça = 1 << 16;
        if (!m_ilkHata.Tamam()) return m_ilkHata;
        for (qsizetype sıra = 0; sıra < m_sütunlar.size(); ++sıra) {
            if (sıra > 0) m_birikmiş += CsvAyracı;
            if (sıra < değerler.size()) DeğerEkle(değerler[sıra]);
        }
        m_birikmiş += CsvSatırSonu;
        return m_birikmiş.size() < parça ? YazmaSonucu() : Boşalt();
    }

    YazmaSonucu Bitir() override {
        if (!m_ilkHata.Tamam() || !Boşalt().Tamam()) return m_ilkHata;
        // What still stands in the buffer first: commit alone would not notice that it does not fit on the disk.
        return m_dosya.flush() && m_dosya.commit() ? YazmaSonucu() : Hata();
    }

  private:
    YazmaSonucu Hata() const { return {YazmaHatası::Yazılamadı, m_dosya.errorString()}; }

    YazmaSonucu Boşalt() {
        const auto boy = static_cast<qint64>(m_birikmiş.size());
        if (m_dosya.write(m_birikmiş.data(), boy) != boy) return m_ilkHata = Hata();
        m_birikmiş.clear();
        return {};
    }

    void DeğerEkle(const ÇizelgeDeğeri& değer) {
        if (const auto* metin = std::get_if<QString>(&değer)) {
            CsvAlanıEkle(m_birikmiş, TabloMetni(*metin).toStdString());
        } else if (const auto* para = std::get_if<Para>(&değer)) {
            char tampon[ÖlçekMetniBoyu];
            m_birikmiş.append(tampon, ÖlçektenYaz(para->OnBindeBir(), ',', tampon));
        } else if (const auto* sayı = std::get_if<Ondalık>(&değer)) {
            if (sayı->Eksi) m_birikmiş += '-';
            m_birikmiş += sayı->Tam();
            if (sayı->Basamak > 0) m_birikmiş.append(1, ',').append(sayı->Kesir());
        } else if (const auto* tarih = std::get_if<QDate>(&değer)) {
            m_birikmiş += tarih->toString(u"dd.MM.yyyy"_s).toStdString();
        }
    }

    QSaveFile m_dosya;
    QList<ÇizelgeSütunu> m_sütunlar;
    std::string m_birikmiş;
    YazmaSonucu m_ilkHata;
};

}  // namespace

std::unique_ptr<ÇizelgeHedefi> CsvHedefi(const QString& yol, const QList<ÇizelgeSütunu>& sütunlar) {
    return std::make_unique<CsvYazıcı>(yol, sütunlar);
}
