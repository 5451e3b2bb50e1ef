// What the main form prints, and the report forms that it opens.

#include <QAction>

#include "AnaForm.h"
#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FisCizelgesi.h"
#include "FormParcalari.h"
#include "KullanilanMalzemeler.h"
#include "MaliyetAlani.h"
#include "MaliyetFisi.h"
#include "ListeCizelgesi.h"
#include "MalzemeHareketleriFormu.h"
#include "MalzemeListesiFormu.h"
#include "MetinTablosu.h"
#include "MiktarAlani.h"
#include "UrunAgaci.h"
#include "UrunListesiFormu.h"
#include "Yazdirma.h"
#include "YuklemeGosterFormu.h"

namespace {

template <typename Form>
void YükleyipAç(QWidget& sahip) {
    Form form(&sahip);
    YüklemeGösterFormu::Çalıştır([&form] { form.Yükle(); }, &sahip);
    form.exec();
}

Yazdırılacak FişiYazdır(const MaliyetFişi& fiş) {
    return {fiş.Ürün, [fiş](SayfaYüzeyi& yüzey) { MaliyetFişiniYaz(yüzey, fiş); }};
}

}  // namespace

void AnaForm::RaporKomutlarınıKur() {
    m_komutlar.Yazdır = KomutOluştur(QStringLiteral("YazdırKomutu"), MetinNo::Yazdır,
                                     [this] { ::Yazdır(*this, *m_yazdır, FişiYazdır(Fiş())); });
    m_komutlar.PdfKaydet = KomutOluştur(QStringLiteral("PdfKaydetKomutu"), MetinNo::PdfKaydet,
                                        [this] { ::PdfKaydet(*this, *m_pdfKaydet, FişiYazdır(Fiş())); });
    m_komutlar.Önizle = KomutOluştur(QStringLiteral("ÖnizlemeKomutu"), MetinNo::Önizleme,
                                     [this] { ::Önizle(*this, FişiYazdır(Fiş())); });
    m_komutlar.TabloyaAktar =
        KomutOluştur(QStringLiteral("TabloyaAktarKomutu"), MetinNo::ExcelKaydet, [this] { FişiAktar(); });
    m_komutlar.GünlükMalzemeHareketleri =
        KomutOluştur(QStringLiteral("GünlükMalzemeHareketleriGösterKomutu"), MetinNo::GünlükMalzemeHareketleriDüğmesi,
                     [this] { MalzemeHareketleriFormu(this).exec(); });
    m_komutlar.MalzemeListesi =
        KomutOluştur(QStringLiteral("MalzemeListesiGösterKomutu"), MetinNo::MalzemeListesiDüğmesi,
                     [this] { YükleyipAç<MalzemeListesiFormu>(*this); });
    m_komutlar.ÜrünListesi = KomutOluştur(QStringLiteral("ÜrünListesiGösterKomutu"), MetinNo::ÜrünListesiDüğmesi,
                                          [this] { YükleyipAç<ÜrünListesiFormu>(*this); });
}

void AnaForm::YazdırmayaİzinVer(bool izin) {
    for (QAction* komut : {m_komutlar.Yazdır, m_komutlar.PdfKaydet, m_komutlar.Önizle, m_komutlar.TabloyaAktar})
        komut->setEnabled(izin);
}

// The printout's summary stands below the rows.
void AnaForm::FişiAktar() {
    const MaliyetFişi fiş = Fiş();
    ÇizelgeyeKaydet(*this, fiş.Ürün, [&](const QString& yol) {
        return ListeyiÇizelgeyeYaz(yol, fiş.Ürün, *m_liste,
                                   {ListeSütunu::Miktar, ListeSütunu::Metin, ListeSütunu::Fiyat, ListeSütunu::Tutar},
                                   FişÖzetininSatırları(fiş));
    });
}

MaliyetFişi AnaForm::Fiş() const {
    MaliyetFişi fiş;
    fiş.Ürün = m_ağaç->SeçiliÜrün();
    for (int i = 0; i < m_liste->topLevelItemCount(); ++i) {
        QStringList hücreler;
        for (int sütun = 0; sütun < m_liste->columnCount(); ++sütun) {
            hücreler.append(m_liste->topLevelItem(i)->text(sütun));
        }
        fiş.Satırlar.append(hücreler);
    }
    const MaliyetGirdisi maliyet = m_maliyet->Girdi();
    fiş.MalzemeMaliyeti = maliyet.MalzemeMaliyeti;
    fiş.İşçilikYüzdesi = maliyet.İşçilik;
    fiş.KârYüzdesi = maliyet.Kâr;
    fiş.DiğerYüzdesi = maliyet.Diğer;
    fiş.VadeYüzdesi = maliyet.Vade;
    fiş.ToplamMaliyet = m_maliyet->ToplamMaliyet();
    const MiktarAlanı::Metinler miktar = m_miktar->KutuMetinleri();
    fiş.ToplamMiktar = miktar.Miktar;
    fiş.BirimMaliyet = miktar.BirimMaliyet;
    fiş.FireOranı = miktar.FireOranı;
    fiş.FireliMiktar = miktar.FireliMiktar;
    fiş.FireliBirimMaliyet = miktar.FireliBirimMaliyet;
    fiş.OndalıkBasamak = OndalıkBasamak;
    return fiş;
}
