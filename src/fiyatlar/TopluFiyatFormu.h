#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "FiyatIsi.h"
#include "TabloModeli.h"
#include "YuvarlamaSecimi.h"

class KomutDüğmesi;
class GirişKutusu;
class SayıKutusu;
class Tablo;
class TarihKutusu;
class QCheckBox;
class QLabel;
class QRadioButton;

// A rise, a cut or one price for many materials: chooses the materials and the rule, then shows what it does.
class TopluFiyatFormu : public QDialog {
  public:
    explicit TopluFiyatFormu(QWidget* sahip);
    ~TopluFiyatFormu() override;

    // Reads the catalogue. False: the user has been told why it could not be read.
    bool Yükle();
    bool Boş() const;
    // Prices were changed while the form was open.
    bool Uygulandı() const { return m_uygulandı; }

  private:
    class MalzemeKaynağı;

    void KontrolleriKur();
    void KuralıKur();
    void Yerleştir();
    QWidget* SeçimBölümü();
    QWidget* KuralBölümü();
    void SüzgeciUygula();
    bool KullanılanlarıOku();
    bool SonDeğişimleriOku();
    void TümünüSeç();
    void SayıyıYaz();
    void KuralDeğişti();
    std::optional<Para> Değer();
    void Önizle();
    QString Açıklama(Para değer) const;
    İşSonucu Öner(Para değer, const Yuvarlama& yuvarlama, FiyatTeklifi& teklif, QStringList& notlar) const;

    bool m_uygulandı = false;
    std::unique_ptr<MalzemeKaynağı> m_kaynak;
    std::unique_ptr<TabloModeli> m_model;
    Tablo* m_tablo;
    GirişKutusu* m_süz;
    QCheckBox* m_kullanılmayanlar;
    QCheckBox* m_değişmeyenler;
    TarihKutusu* m_tarih;
    KomutDüğmesi* m_tümünüSeç;
    QLabel* m_sayı;
    QRadioButton* m_yüzde;
    QRadioButton* m_tutar;
    QRadioButton* m_fiyat;
    SayıKutusu* m_oran;
    YuvarlamaSeçimi m_yuvarlama;
    KomutDüğmesi* m_önizle;
};
