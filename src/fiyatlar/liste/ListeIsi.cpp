// The work of FiyatListesiAlFormu: from the file to rows, from rows to materials, from materials to the preview.

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QDateTime>
#include <QFileInfo>
#include <QLabel>
#include <QSet>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableView>

#include "FiyatIsi.h"
#include "FiyatListesiAlFormu.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "ListeKutulari.h"
#include "ListeMetinleri.h"
#include "MalzemeSecFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TedarikciKayitlari.h"

namespace {

// When the file was last written, and how long it is; "" without a file.
QString DosyaDamgası(const QString& yol) {
    const QFileInfo bilgi(yol);
    if (yol.isEmpty() || !bilgi.exists()) return {};
    return bilgi.lastModified().toString(Qt::ISODateWithMs) + QLatin1Char(' ') + QString::number(bilgi.size());
}

// What the user has ticked, so that it can be told what a new matching took away.
QStringList İşaretliler(const FiyatListesi& liste) {
    QStringList adlar;
    for (const ListeSatırı& satır : liste.Satırlar())
        if (satır.İşaretli) adlar.append(satır.Ad);
    return adlar;
}

}  // namespace

bool FiyatListesiAlFormu::Yükle() {
    const İşSonucu sonuç = TedarikçileriOku(ODBCBağlantısı(), m_tedarikçiler);
    if (!İşSonucunuGöster(sonuç)) return false;
    QStringList adlar;
    for (const Tedarikçi& tedarikçi : m_tedarikçiler) adlar.append(tedarikçi.Ad);
    m_tedarikçi->Doldur(adlar);
    return Eşle();
}

// Left with another path, or the file is another one by now.
void FiyatListesiAlFormu::DosyaKutusuBırakıldı() {
    const QString yol = m_dosya->text();
    if (yol != m_yol || DosyaDamgası(yol) != m_damga) DosyayıOku(yol);
}

void FiyatListesiAlFormu::Gözat() {
    static QString klasör = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog kutu(this, Metin(MetinNo::FiyatListesiFormuBaşlığı), klasör, Metin(MetinNo::FiyatListesiSüzgeci));
    kutu.setObjectName(QStringLiteral("FiyatListesiSeçFormu"));
    kutu.setFileMode(QFileDialog::ExistingFile);
    if (kutu.exec() != QDialog::Accepted) return;
    const QString yol = kutu.selectedFiles().value(0);
    klasör = QFileInfo(yol).absolutePath();
    DosyayıOku(yol);
}

bool FiyatListesiAlFormu::DosyayıOku(const QString& yol) {
    if (m_okunuyor) return false;
    m_yol = yol;
    m_damga = DosyaDamgası(yol);
    m_dosya->setText(yol);
    if (yol.isEmpty()) {
        Boşalt();
        return false;
    }
    return Tanı({});
}

// Rows of another file, sheet or supplier must not stand below what could not be read.
void FiyatListesiAlFormu::Boşalt() {
    m_seçim = {};
    m_araBaşlık = 0;
    m_liste.Al({});
    m_ilkler.Göster({}, {});
    for (QComboBox* kutu : {m_sayfa, m_adSütunu, m_fiyatSütunu}) kutu->clear();
    for (QWidget* kutu : std::initializer_list<QWidget*>{m_sayfa, m_ayraç, m_başlık, m_adSütunu, m_fiyatSütunu})
        kutu->setEnabled(false);
    m_model.Yenile();
    SayıyıYaz();
}

bool FiyatListesiAlFormu::Tanı(const ListeSeçimi& seçim) {
    const Tedarikçi* tercih = KayıtlıTedarikçi();
    TanınanListe liste;
    m_okunuyor = true;
    const OkumaSonucu sonuç =
        ArkadaOku(MetinNo::ListeOkunuyor, this,
                  [&, kayıt = tercih ? std::optional(*tercih) : std::nullopt](const OkumaGözetimi& gözetim) {
                      return ListeyiTanı(m_yol, seçim, kayıt, gözetim, liste);
                  });
    m_okunuyor = false;
    Boşalt();
    if (!sonuç.Tamam()) {
        if (sonuç.Hata == ÇizelgeHatası::Durduruldu) return false;
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Ünlem, MesajKutusu::Düğmeler::Tamam,
                            OkumaHatası(sonuç) + QLatin1Char('\n') + m_yol);
        return false;
    }
    SeçimiGöster(liste);
    return SatırlarıOku();
}

void FiyatListesiAlFormu::SeçimiGöster(const TanınanListe& liste) {
    m_seçim = liste.Seçim;
    m_tür = liste.Tür;
    m_ilkler.Göster(liste.İlkler, m_seçim.Sütunlar);
    for (const SayfaBilgisi& sayfa : liste.Sayfalar) {
        const QString ad = sayfa.Ad.isEmpty() ? QFileInfo(m_yol).fileName() : sayfa.Ad;
        m_sayfa->addItem(sayfa.Gizli ? ad + QStringLiteral(" (%1)").arg(Metin(MetinNo::SayfaGizli)) : ad, sayfa.Ad);
    }
    m_sayfa->setCurrentIndex(static_cast<int>(m_seçim.Sayfa));
    m_sayfa->setEnabled(true);
    m_ayraç->setEnabled(m_tür == ÇizelgeTürü::Csv);
    m_ayraç->setCurrentIndex(m_ayraç->findData(QChar::fromLatin1(m_seçim.Ayraç)));
    {
        const QSignalBlocker sessiz(m_başlık);
        m_başlık->setValue(static_cast<int>(m_seçim.Sütunlar.BaşlıkSatırı));
    }
    SütunAdlarınıYaz();
    m_adSütunu->setCurrentIndex(m_seçim.Sütunlar.AdSütunu);
    m_fiyatSütunu->setCurrentIndex(m_seçim.Sütunlar.FiyatSütunu);
    for (QWidget* kutu : std::initializer_list<QWidget*>{m_başlık, m_adSütunu, m_fiyatSütunu}) kutu->setEnabled(true);
    m_ilkTablo->resizeColumnsToContents();
}

// The captions' row names the columns.
void FiyatListesiAlFormu::SütunAdlarınıYaz() {
    for (QComboBox* kutu : {m_adSütunu, m_fiyatSütunu}) {
        const int seçili = kutu->currentIndex();
        kutu->clear();
        for (int sütun = 0; sütun < m_ilkler.columnCount(); ++sütun) kutu->addItem(m_ilkler.SütunAdı(sütun));
        kutu->setCurrentIndex(seçili);
    }
}

void FiyatListesiAlFormu::SütunlarDeğişti() {
    const SütunTahmini yeni{m_başlık->value(), m_adSütunu->currentIndex(), m_fiyatSütunu->currentIndex()};
    const SütunTahmini& eski = m_seçim.Sütunlar;
    if (yeni.BaşlıkSatırı == eski.BaşlıkSatırı && yeni.AdSütunu == eski.AdSütunu &&
        yeni.FiyatSütunu == eski.FiyatSütunu)
        return;
    m_seçim.Sütunlar = yeni;
    m_ilkler.Seç(yeni);
    SütunAdlarınıYaz();
    SatırlarıOku();
}

bool FiyatListesiAlFormu::SatırlarıOku() {
    std::vector<ListeSatırı> satırlar;
    OkumaSonucu sonuç;
    m_araBaşlık = 0;
    if (m_seçim.Sütunlar.AdSütunu >= 0 && m_seçim.Sütunlar.FiyatSütunu >= 0) {
        m_okunuyor = true;
        sonuç = ArkadaOku(MetinNo::ListeOkunuyor, this, [&](const OkumaGözetimi& gözetim) {
            return ListeSatırlarınıOku(m_yol, m_seçim, gözetim, satırlar, m_araBaşlık);
        });
        m_okunuyor = false;
    }
    // A part of a list would pass for the whole.
    if (!sonuç.Tamam()) satırlar.clear();
    m_liste.Al(std::move(satırlar));
    if (sonuç.Tamam() && Eşle()) return true;
    if (!sonuç.Tamam() && sonuç.Hata != ÇizelgeHatası::Durduruldu) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Ünlem, MesajKutusu::Düğmeler::Tamam,
                            OkumaHatası(sonuç) + QLatin1Char('\n') + m_yol);
    }
    Boşalt();
    m_damga.clear();  // leaving the path's box tries again
    return false;
}

İşSonucu FiyatListesiAlFormu::Eşle(const MalzemeKataloğu& katalog) {
    std::vector<Deyimler::Tedarikçi::Bağ> bağlar;
    İşSonucu sonuç;
    if (!m_tedarikçiAdı.isEmpty()) sonuç = TedarikçiBağlarınıOku(ODBCBağlantısı(), m_tedarikçiAdı, bağlar);
    if (!sonuç.Tamam()) return sonuç;
    m_bağlar = std::move(bağlar);
    KuralıUygula(katalog);
    return sonuç;
}

void FiyatListesiAlFormu::KuralıUygula(const MalzemeKataloğu& katalog) {
    m_liste.Eşle(katalog, m_bağlar, static_cast<Ondalıkİmi>(m_ondalık->currentIndex()),
                 {ParaOku(m_iskonto->text()).value_or(Para()), m_yuvarlama.Seçilen()});
}

bool FiyatListesiAlFormu::Eşle() {
    MalzemeKataloğu katalog;
    İşSonucu sonuç = katalog.Oku(ODBCBağlantısı());
    if (sonuç.Tamam()) sonuç = Eşle(katalog);
    if (sonuç.Tamam()) m_model.Yenile();  // otherwise the rows stand as they were
    SayıyıYaz();
    İşSonucunuGöster(sonuç);
    return sonuç.Tamam();
}

// The rows stay in their places, as the user may be about to click one.
void FiyatListesiAlFormu::KuralDeğişti() {
    if (m_liste.Satırlar().empty() || !İskontoOkunur()) return;
    KuralıUygula(MalzemeKataloğu(m_liste.Katalog()));
    m_model.HücrelerDeğişti();
    SayıyıYaz();
}

bool FiyatListesiAlFormu::İskontoOkunur() const {
    return m_iskonto->text().isEmpty() || ParaOku(m_iskonto->text());
}

void FiyatListesiAlFormu::SayıyıYaz() {
    const FiyatListesi::Sayılar sayılar = m_liste.Say();
    const auto satır = static_cast<std::int64_t>(m_liste.Satırlar().size());
    if (m_yol.isEmpty())
        m_sayı->setText(Metin(MetinNo::DosyaSeçin));
    else if (m_seçim.Sayfa >= 0 && (m_seçim.Sütunlar.AdSütunu < 0 || m_seçim.Sütunlar.FiyatSütunu < 0))
        m_sayı->setText(Metin(MetinNo::SütunSeçin));
    else
        m_sayı->setText(Metin(MetinNo::ListeSayıları)
                            .arg(satır)
                            .arg(sayılar.Eşleşen)
                            .arg(sayılar.Yeni)
                            .arg(sayılar.Sorunlu)
                            .arg(m_araBaşlık)
                            .arg(sayılar.İşaretli));
    m_önizle->setEnabled(sayılar.İşaretli > 0);
    m_görünenler->setEnabled(m_model.rowCount() > 0);
    SeçimDeğişti();
}

void FiyatListesiAlFormu::SeçimDeğişti() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    const ListeSatırı* seçili = satır ? &m_liste.Satırlar()[*satır] : nullptr;
    const bool adlı = seçili && seçili->Durum != ListeDurumu::AdOkunamaz && seçili->Durum != ListeDurumu::AdYok &&
                      seçili->Durum != ListeDurumu::AdUzun;
    m_eşleştir->setEnabled(adlı);
    m_çöz->setEnabled(adlı && seçili->Bağlı);
}

// Of rows that conflict none is chosen for the user.
void FiyatListesiAlFormu::GörünenleriSeç() {
    const auto seçilir = [this](int sıra) {
        const ListeDurumu durum = m_liste.Satırlar()[m_model.KaynakSatırı(sıra)].Durum;
        return durum == ListeDurumu::Eşleşti || durum == ListeDurumu::Yeni;
    };
    bool hepsi = true;
    for (int sıra = 0; sıra < m_model.rowCount() && hepsi; ++sıra)
        hepsi = !seçilir(sıra) || m_liste.Satırlar()[m_model.KaynakSatırı(sıra)].İşaretli;
    for (int sıra = 0; sıra < m_model.rowCount(); ++sıra)
        if (seçilir(sıra)) m_liste.İşaretle(m_model.KaynakSatırı(sıra), !hepsi);
    m_model.HücrelerDeğişti();
    SayıyıYaz();
}

void FiyatListesiAlFormu::Eşleştir() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır) return;
    if (m_tedarikçiAdı.isEmpty()) {
        Uyar(MetinNo::TedarikçiBoş, *m_tedarikçi);
        return;
    }
    const ListeSatırı& seçili = m_liste.Satırlar()[*satır];
    const QString ad = ListeAdı(seçili.AdHücresi.Metin);
    const std::vector<KatalogMalzemesi>& malzemeler = m_liste.Katalog().Malzemeler;
    MalzemeSeçFormu form(ad, malzemeler, seçili.Malzeme, seçili.Bölen, this);
    if (form.exec() != QDialog::Accepted) return;
    const QString malzeme = malzemeler[form.Seçilen()].Ad;
    if (!Deyimler::Yazılabilir(malzeme)) {
        Uyar(MetinNo::AdTırnaklı, *m_tablo);
        return;
    }
    const İşSonucu sonuç = TedarikçiBağınıYaz(ODBCBağlantısı(), m_tedarikçiAdı, {ad, malzeme, form.Bölen()});
    İşSonucunuGöster(sonuç);
    if (sonuç.Tamam() && Eşle()) YenidenSeç(*satır);
}

void FiyatListesiAlFormu::EşleşmeyiÇöz() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır) return;
    const QString ad = ListeAdı(m_liste.Satırlar()[*satır].AdHücresi.Metin);
    const İşSonucu sonuç = TedarikçiBağınıSil(ODBCBağlantısı(), m_tedarikçiAdı, ad);
    İşSonucunuGöster(sonuç);
    if (sonuç.Tamam() && Eşle()) YenidenSeç(*satır);
}

// The row that the user works on stays marked, if the filter still shows it.
void FiyatListesiAlFormu::YenidenSeç(std::size_t satır) {
    m_tablo->SatırıSeç([satır](std::size_t yer) { return yer == satır; });
    m_tablo->setFocus();
}

QString FiyatListesiAlFormu::Açıklama() const {
    const Para iskonto = ParaOku(m_iskonto->text()).value_or(Para());
    QString açıklama =
        Metin(MetinNo::ListeAçıklaması).arg(m_tedarikçiAdı.isEmpty() ? QFileInfo(m_yol).fileName() : m_tedarikçiAdı);
    if (iskonto > Para()) açıklama += Metin(MetinNo::İskontoAçıklaması).arg(SayıYazımı(iskonto));
    if (iskonto < Para())
        açıklama += Metin(MetinNo::ArtışAçıklaması).arg(SayıYazımı(Para::OnBindeBirden(-iskonto.OnBindeBir())));
    return açıklama + m_yuvarlama.Açıklama();
}

Fiyatİşi FiyatListesiAlFormu::İş() {
    const auto öner = [this](FiyatTeklifi& teklif, QStringList& notlar) {
        MalzemeKataloğu katalog;
        İşSonucu sonuç = katalog.Oku(ODBCBağlantısı());
        const QStringList önceki = İşaretliler(m_liste);
        if (sonuç.Tamam()) sonuç = Eşle(katalog);
        m_model.Yenile();
        SayıyıYaz();
        if (!sonuç.Tamam()) return sonuç;
        const QStringList kalan = İşaretliler(m_liste);
        const QSet<QString> kalanlar(kalan.begin(), kalan.end());
        QStringList düşenler = önceki;
        düşenler.removeIf([&kalanlar](const QString& ad) { return kalanlar.contains(ad); });
        if (!düşenler.isEmpty()) notlar.append(Metin(MetinNo::ArtıkEşleşmeyenler).arg(AdlarınBaşı(düşenler)));
        teklif.Öneriler = m_liste.Öneriler();
        return sonuç;
    };
    return {{İşlemTürü::Liste, Açıklama()}, öner};
}

void FiyatListesiAlFormu::Önizle() {
    if (!m_iskonto->text().isEmpty() && !m_iskonto->Saklanır()) return;
    if (!m_tedarikçiAdı.isEmpty()) {
        İşSonucu sonuç = TedarikçiyiYaz(ODBCBağlantısı(), SeçilenTercih());
        if (sonuç.Tamam()) sonuç = TedarikçileriOku(ODBCBağlantısı(), m_tedarikçiler);
        if (!İşSonucunuGöster(sonuç)) return;
    }
    if (!FiyatİşiniYürüt(İş(), this)) return;
    m_uygulandı = true;
    accept();
}
