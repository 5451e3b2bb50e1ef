#include "Csv.h"

#include <QFileInfo>

#include "CsvYazimi.h"
#include "Utf8.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

CsvDosyası::CsvDosyası(const QString& yol) : m_dosya(yol) {
    if (!m_dosya.open(QIODevice::ReadOnly)) throw VeriHatası(u"%1 okunamadı: %2"_s.arg(yol, m_dosya.errorString()));
    if (m_dosya.peek(static_cast<qint64>(CsvBaşı.size())) == QByteArray(CsvBaşı.data(), CsvBaşı.size()))
        m_dosya.skip(static_cast<qint64>(CsvBaşı.size()));
}

void CsvDosyası::Hata(const QString& neden) const {
    throw VeriHatası(u"%1:%2: %3"_s.arg(QFileInfo(m_dosya.fileName()).fileName()).arg(m_satırBaşı).arg(neden));
}

int CsvDosyası::Bak() {
    constexpr qint64 parça = 1 << 16;
    if (m_yer == m_tampon.size()) {
        m_tampon = m_dosya.read(parça);
        m_yer = 0;
        if (m_dosya.error() != QFileDevice::NoError) Hata(m_dosya.errorString());
        if (m_tampon.isEmpty()) return SON;
    }
    return static_cast<unsigned char>(m_tampon[m_yer]);
}

void CsvDosyası::İlerle() {
    if (m_tampon[m_yer++] == '\n') ++m_satır;
}

bool CsvDosyası::Sıradaki(std::vector<std::string>& alanlar) {
    m_satırBaşı = m_satır;
    if (Bak() == SON) return false;
    std::size_t sayı = 0;
    do {
        if (sayı > 0) İlerle();
        if (sayı == alanlar.size()) alanlar.emplace_back();
        AlanıOku(alanlar[sayı]);
        if (!Utf8Geçerli(alanlar[sayı]) || alanlar[sayı].find('\0') != std::string::npos)
            Hata(u"geçersiz karakter; dosya UTF-8 olmalıdır"_s);
        ++sayı;
    } while (Bak() == CsvAyracı);
    if (!SatırBitti()) Hata(u"kapanan tırnaktan sonra ; ya da satır sonu gerekir"_s);
    alanlar.resize(sayı);
    return true;
}

void CsvDosyası::AlanıOku(std::string& alan) {
    alan.clear();
    if (Bak() == '"') return TırnaklıyıOku(alan);
    for (int harf = Bak(); harf != SON && harf != CsvAyracı && harf != '\r' && harf != '\n'; harf = Bak()) {
        if (harf == '"') Hata(u"tırnak (\") taşıyan alan tırnak içine alınmalı, tırnağı iki kez yazılmalıdır"_s);
        alan += static_cast<char>(harf);
        İlerle();
    }
}

void CsvDosyası::TırnaklıyıOku(std::string& alan) {
    İlerle();
    for (;;) {
        const int harf = Bak();
        if (harf == SON) Hata(u"açılan tırnak kapanmamış"_s);
        İlerle();
        if (harf == '"') {
            if (Bak() != '"') return;
            İlerle();
        }
        alan += static_cast<char>(harf);
    }
}

bool CsvDosyası::SatırBitti() {
    if (Bak() == SON) return true;
    if (Bak() == '\r') İlerle();
    if (Bak() != '\n') return false;
    İlerle();
    return true;
}
