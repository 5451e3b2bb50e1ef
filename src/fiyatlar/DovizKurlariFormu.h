#pragma once

#include <QDialog>
#include <memory>

#include "DovizTablolari.h"
#include "FiyatIsi.h"
#include "YuvarlamaSecimi.h"

class QLabel;
class DövizBağları;
class DövizKoduKutusu;
class KomutDüğmesi;
class SayıKutusu;
class Tablo;
class TarihKutusu;

// Currencies, their rates, and the materials whose price follows one. A rate of a currency that has been added is
// stored by the preview alone, together with the prices that it makes.
class DövizKurlarıFormu : public QDialog {
  public:
    explicit DövizKurlarıFormu(QWidget* sahip);
    ~DövizKurlarıFormu() override;

    // Reads everything; what is marked stays so. False: the user has been told why it could not be read.
    bool Yükle();
    // A rate was carried out while the form was open.
    bool Uygulandı() const { return m_uygulandı; }

  private:
    struct GirilenKur {
        Para Kur;
        QString Gün;  // yyyy-MM-dd
    };

    void KontrolleriKur();
    void Yerleştir();
    QWidget* DövizBölümü();
    QWidget* KurBölümü();
    QString SeçiliKod() const;
    void DövizSeçildi();
    void DüğmeleriAyarla();
    std::optional<GirilenKur> Girilen();
    bool KodUygun(const QString& kod);
    void DövizEkle();
    void DövizSil();
    void Önizle();

    bool m_uygulandı = false;
    bool m_yenileniyor = false;
    DövizVerisi m_veri;
    DövizKaynağı m_kaynak;
    TabloModeli m_model;
    Tablo* m_tablo;
    QLabel* m_not;
    KomutDüğmesi* m_sil;
    SayıKutusu* m_kur;
    TarihKutusu* m_gün;
    YuvarlamaSeçimi m_yuvarlama;
    KomutDüğmesi* m_önizle;
    DövizKoduKutusu* m_kod;
    KomutDüğmesi* m_ekle;
    DövizBağları* m_bağlar;
};
