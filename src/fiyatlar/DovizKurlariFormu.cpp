#include "DovizKurlariFormu.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "CizelgeKaydi.h"
#include "CizelgeMetinleri.h"
#include "DovizBaglari.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TarihKutusu.h"

using Deyimler::Döviz::Döviz;

namespace {

constexpr int EN_KISA_KOD = 2;
constexpr int EN_UZUN_KOD = 10;

// Of the letters that a keyboard brings, those that a code may have. No rule of a language: i is I.
char16_t KodHarfi(QChar harf) {
    if (harf == u'ı' || harf == u'İ') return u'I';
    if (harf >= u'a' && harf <= u'z') return harf.unicode() - u'a' + u'A';
    return harf >= u'A' && harf <= u'Z' ? harf.unicode() : u'\0';
}

}  // namespace

// A currency's code: capital letters, as typed or pasted; anything else is refused.
class DövizKoduKutusu : public GirişKutusu {
  public:
    DövizKoduKutusu() { EnUzunOlsun(EN_UZUN_KOD); }

    bool Denetle(QString& metin, int& imleç) override {
        QString kod;
        int yer = imleç;
        for (qsizetype i = 0; i < metin.size(); ++i) {
            if (const char16_t harf = KodHarfi(metin[i]))
                kod += QChar(harf);
            else if (!metin[i].isSpace())
                return false;
            else if (i < imleç)
                --yer;
        }
        metin = kod;
        imleç = yer;
        return true;
    }
};

DövizKurlarıFormu::DövizKurlarıFormu(QWidget* sahip)
    : QDialog(sahip), m_kaynak(m_veri), m_model(m_kaynak, DövizKaynağı::Sütunlar()) {
    setObjectName(QStringLiteral("DövizKurlarıFormu"));
    setWindowTitle(Metin(MetinNo::DövizKurlarıBaşlığı));
    KontrolleriKur();
    Yerleştir();
    DüğmeleriAyarla();
}

DövizKurlarıFormu::~DövizKurlarıFormu() {
    // The views go before the data and the models that they show.
    delete m_bağlar;
    delete m_tablo;
}

void DövizKurlarıFormu::KontrolleriKur() {
    m_tablo = new Tablo(QStringLiteral("DövizTablosu"), m_model);
    m_tablo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as the boxes beside it
    m_not = TabloNotu(QStringLiteral("DövizNotu"), *m_tablo);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { DövizSeçildi(); });
    m_sil = DüğmeOluştur(QStringLiteral("DövizSilButonu"), MetinNo::DövizSil, [this] { DövizSil(); });
    m_kur = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_kur->setObjectName(QStringLiteral("KurKutusu"));
    TutaraYerAç(m_kur);
    m_gün = new TarihKutusu;
    m_gün->setObjectName(QStringLiteral("KurGünüKutusu"));
    m_gün->setDate(Bugün());
    Enterİleİlerlesin(m_gün);
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizleButonu"), MetinNo::FiyatÖnizle, [this] { Önizle(); });
    m_kod = new DövizKoduKutusu;
    m_kod->setObjectName(QStringLiteral("DövizKoduKutusu"));
    m_ekle = DüğmeOluştur(QStringLiteral("DövizEkleButonu"), MetinNo::DövizEkle, [this] { DövizEkle(); });
    m_bağlar = new DövizBağları(m_veri, [this] { static_cast<void>(Yükle()); });
}

QWidget* DövizKurlarıFormu::DövizBölümü() {
    auto* bölüm = new QWidget;
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(0, MetinNo::DövizlerEtiketi, m_tablo));
    düzen->addWidget(m_tablo, 1);
    auto* aktar =
        TabloyaAktarDüğmesi(ÇizelgeMetni::TabloyaAktarR, m_model, QStringLiteral("DövizTablosunuAktarButonu"));
    düzen->addLayout(DüğmeSırası({m_sil, aktar, nullptr}));
    return bölüm;
}

QWidget* DövizKurlarıFormu::KurBölümü() {
    QFrame* çerçeve = ÇerçeveOluştur();
    auto* düzen = new QGridLayout(çerçeve);
    int sıra = 0;
    const auto ekle = [&](MetinNo metin, QWidget* kutu) {
        düzen->addWidget(VurgulananEtiket(sıra + 1, metin, kutu), sıra, 0);
        düzen->addWidget(kutu, sıra++, 1);
    };
    ekle(MetinNo::KurEtiketi, m_kur);
    ekle(MetinNo::KurGünüEtiketi, m_gün);
    ekle(MetinNo::YuvarlamaEtiketi, m_yuvarlama.Adımlar);
    ekle(MetinNo::YuvarlamaYönüEtiketi, m_yuvarlama.Yönler);
    düzen->addWidget(m_önizle, sıra++, 1, Qt::AlignRight);
    ekle(MetinNo::DövizKoduEtiketi, m_kod);
    düzen->addWidget(m_ekle, sıra, 1, Qt::AlignRight);
    düzen->setRowStretch(sıra + 1, 1);
    return çerçeve;
}

void DövizKurlarıFormu::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(DövizBölümü(), 1);
    üst->addWidget(KurBölümü());
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(m_bağlar, 1);
    düzen->addLayout(DüğmeSırası({nullptr, kapat}));
    m_tablo->setFocus();
    BoyVer(*this, {980, 640});
}

bool DövizKurlarıFormu::Yükle() {
    const QString kod = SeçiliKod();
    m_bağlar->SeçimiSakla();
    DövizVerisi veri;
    if (!İşSonucunuGöster(veri.Oku(ODBCBağlantısı()))) return false;
    m_yenileniyor = true;
    m_veri = std::move(veri);
    m_model.Yenile();
    m_tablo->SatırıSeç([&](std::size_t satır) { return m_veri.Dövizler[satır].Kod == kod; });
    m_yenileniyor = false;
    NotuYaz(*m_not, *m_tablo, Metin(MetinNo::DövizYok));
    m_bağlar->Yenile(SeçiliKod());
    DüğmeleriAyarla();
    return true;
}

QString DövizKurlarıFormu::SeçiliKod() const {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    return satır ? m_veri.Dövizler[*satır].Kod : QString();
}

void DövizKurlarıFormu::DövizSeçildi() {
    if (m_yenileniyor) return;
    m_bağlar->DöviziSeç(SeçiliKod());
    DüğmeleriAyarla();
}

void DövizKurlarıFormu::DüğmeleriAyarla() {
    const bool seçili = m_tablo->SeçiliSatır().has_value();
    m_sil->setEnabled(seçili);
    m_önizle->setEnabled(seçili);
}

std::optional<DövizKurlarıFormu::GirilenKur> DövizKurlarıFormu::Girilen() {
    if (m_kur->text().isEmpty()) {
        Uyar(MetinNo::KurBoş, *m_kur);
        return std::nullopt;
    }
    if (!m_kur->Saklanır()) return std::nullopt;
    const std::optional<Para> kur = ParaOku(m_kur->text());
    if (!kur || *kur <= Para()) {
        Uyar(MetinNo::KurSıfır, *m_kur);
        return std::nullopt;
    }
    const std::optional<QDate> gün = m_gün->YazılanTarih();
    if (!gün) {
        Uyar(MetinNo::TarihGeçersiz, *m_gün);
        return std::nullopt;
    }
    return GirilenKur{*kur, gün->toString(Qt::ISODate)};
}

bool DövizKurlarıFormu::KodUygun(const QString& kod) {
    if (kod.size() < EN_KISA_KOD) return Uyar(MetinNo::DövizKoduKısa, *m_kod);
    if (kod == u"TL" || kod == u"TRY") return Uyar(MetinNo::DövizKoduTL, *m_kod);
    bool var = false;
    if (!İşSonucunuGöster(DövizVar(ODBCBağlantısı(), kod, var))) return false;
    return !var || Uyar(Metin(MetinNo::DövizListedeVar).arg(kod), *m_kod);
}

void DövizKurlarıFormu::DövizEkle() {
    const QString kod = m_kod->text();
    if (!KodUygun(kod)) return;
    const std::optional<GirilenKur> girilen = Girilen();
    if (!girilen) return;
    if (!İşSonucunuGöster(::DövizEkle(ODBCBağlantısı(), {kod, girilen->Kur, girilen->Gün}))) return;
    m_kod->clear();
    m_kur->clear();
    if (!Yükle()) return;
    m_tablo->SatırıSeç([&](std::size_t satır) { return m_veri.Dövizler[satır].Kod == kod; });
    m_tablo->setFocus();
}

void DövizKurlarıFormu::DövizSil() {
    const QString kod = SeçiliKod();
    if (kod.isEmpty()) return;
    std::vector<Deyimler::Döviz::Bağ> bağlar;
    İşSonucu sonuç = DövizBağlarınıOku(ODBCBağlantısı(), bağlar);
    const auto sayı = std::count_if(bağlar.begin(), bağlar.end(), [&kod](const auto& bağ) { return bağ.Kod == kod; });
    if (sonuç.Tamam() && sayı > 0) {
        Uyar(Metin(MetinNo::DövizKullanılıyor).arg(kod).arg(sayı), *m_tablo);
        return;
    }
    if (sonuç.Tamam()) sonuç = ::DövizSil(ODBCBağlantısı(), kod);
    if (!İşSonucunuGöster(sonuç)) return;
    static_cast<void>(Yükle());
}

void DövizKurlarıFormu::Önizle() {
    const QString kod = SeçiliKod();
    if (kod.isEmpty()) return;
    const std::optional<GirilenKur> girilen = Girilen();
    if (!girilen) return;
    const KurDeğişimi kur{kod, {}, girilen->Kur, {}, girilen->Gün, {}};
    const QString açıklama = Metin(MetinNo::KurAçıklaması).arg(kod, FiyatMetni(kur.Yeni), GünMetni(kur.YeniGün));
    bool dövizYok = false;
    const Fiyatİşi iş{{İşlemTürü::Kur, açıklama + m_yuvarlama.Açıklama(), 0},
                      [&dövizYok, kur, yuvarlama = m_yuvarlama.Seçilen()](FiyatTeklifi& teklif, QStringList& notlar) {
                          QStringList eksikler;
                          İşSonucu sonuç = KurÖnerileri(ODBCBağlantısı(), kur, yuvarlama, teklif, eksikler);
                          notlar += EksiklerNotu(eksikler);
                          dövizYok = sonuç.Tamam() && !teklif.Kur;
                          if (dövizYok) sonuç.Son = İşSonu::Vazgeçildi;
                          return sonuç;
                      }};
    const bool uygulandı = FiyatİşiniYürüt(iş, this);
    if (dövizYok) Uyar(Metin(MetinNo::DövizSilinmiş).arg(kod), *m_tablo);
    if (!uygulandı && !dövizYok) return;
    m_uygulandı |= uygulandı;
    if (uygulandı) m_kur->clear();
    static_cast<void>(Yükle());
    m_tablo->setFocus();
}
