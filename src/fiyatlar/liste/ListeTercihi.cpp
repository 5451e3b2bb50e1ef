// What FiyatListesiAlFormu keeps for a supplier, and takes from him.

#include <QComboBox>
#include <QSignalBlocker>

#include "FiyatListesiAlFormu.h"
#include "FiyatYazimi.h"
#include "ListeKutulari.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "TurkceSira.h"

const Deyimler::Tedarikçi::Tedarikçi* FiyatListesiAlFormu::KayıtlıTedarikçi() const {
    for (const Tedarikçi& tedarikçi : m_tedarikçiler)
        if (Türkçe::Aynı(tedarikçi.Ad, m_tedarikçiAdı)) return &tedarikçi;
    return nullptr;
}

void FiyatListesiAlFormu::TedarikçiDeğişti() {
    const QString ad = ListeAdı(m_tedarikçi->currentText());
    if (ad == m_tedarikçiAdı || m_okunuyor) return;
    const bool kayıtlıydı = KayıtlıTedarikçi() != nullptr;
    m_tedarikçiAdı = ad;
    const Tedarikçi* tercih = KayıtlıTedarikçi();
    // What was put in for another supplier does not pass to this one.
    if (tercih || kayıtlıydı) TercihiGöster(tercih ? *tercih : Tedarikçi());
    if (tercih && !m_yol.isEmpty()) {
        Tanı({});
        return;
    }
    Eşle();
}

void FiyatListesiAlFormu::TercihiGöster(const Tedarikçi& tercih) {
    const QSignalBlocker adımSessiz(m_yuvarlama.Adımlar);
    const QSignalBlocker yönSessiz(m_yuvarlama.Yönler);
    m_iskonto->setText(tercih.İskonto == Para() ? QString() : SayıYazımı(tercih.İskonto));
    m_yuvarlama.Seç({tercih.YuvarlamaAdımı.OnBindeBir(), static_cast<YuvarlamaYönü>(tercih.YuvarlamaYönü)});
    m_ondalık->setCurrentIndex(tercih.Ondalık == u"," ? 1 : tercih.Ondalık == u"." ? 2 : 0);
}

Deyimler::Tedarikçi::Tedarikçi FiyatListesiAlFormu::SeçilenTercih() const {
    const SütunTahmini& sütunlar = m_seçim.Sütunlar;
    const Yuvarlama yuvarlama = m_yuvarlama.Seçilen();
    Tedarikçi tercih;
    tercih.Ad = m_tedarikçiAdı;
    tercih.Sayfa = m_tür == ÇizelgeTürü::Csv ? QString() : m_sayfa->currentData().toString();
    tercih.BaşlıkSatırı = static_cast<int>(sütunlar.BaşlıkSatırı);
    tercih.AdSütunu = sütunlar.AdSütunu;
    tercih.FiyatSütunu = sütunlar.FiyatSütunu;
    tercih.AdBaşlığı = m_ilkler.Başlık(sütunlar.AdSütunu);
    tercih.FiyatBaşlığı = m_ilkler.Başlık(sütunlar.FiyatSütunu);
    constexpr const char* imler[] = {"", ",", "."};
    tercih.Ondalık = QString::fromLatin1(imler[m_ondalık->currentIndex()]);
    if (m_tür == ÇizelgeTürü::Csv) tercih.Ayraç = QChar::fromLatin1(m_seçim.Ayraç);
    tercih.İskonto = ParaOku(m_iskonto->text()).value_or(Para());
    tercih.YuvarlamaAdımı = Para::OnBindeBirden(yuvarlama.Adım);
    tercih.YuvarlamaYönü = static_cast<int>(yuvarlama.Yön);
    return tercih;
}
