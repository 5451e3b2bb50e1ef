#pragma once

#include <QDialog>

#include "ArsivTablolari.h"

class FarkBölümü;
class GelişimBölümü;
class GirişKutusu;
class KomutDüğmesi;
class Tablo;
class QComboBox;
class QLabel;

// The archive of cost sheets: what has been frozen when; freezing anew, looking at a sheet, comparing two days, a
// product's total over time. Opening reads the list of archives alone.
class MaliyetArşiviFormu : public QDialog {
  public:
    // `seçili`: the product or group that is offered for archiving and drawn first.
    MaliyetArşiviFormu(const Kapsam& seçili, QWidget* sahip);
    ~MaliyetArşiviFormu() override;

    // False: the user has been told why it could not be read.
    bool Yükle();

  private:
    void KontrolleriKur();
    QWidget* Arşivleme();
    QWidget* Arşivler();
    void Yerleştir();
    bool ArşivleriOkuVeGöster(std::int64_t seçilecek);
    void KapsamıDoldur(const Kapsam& seçili);
    void ÜrünleriDoldur();
    Kapsam SeçiliKapsam() const;
    void Arşivle();
    bool ArşivlensinMi(const Kapsam& kapsam, ArşivBoyu& boy);
    void ArşivSeçildi();
    void FöySeçildi();
    void FöyüGöster();
    void Sil();
    const Başlık* SeçiliArşiv() const;

    const Kapsam m_ilk;
    std::vector<std::pair<QString, QStringList>> m_gruplar;  // with their products; behind the first entry of the list
    ArşivSatırları m_arşivler;
    FöySatırları m_föyler;
    TabloModeli m_arşivModeli;
    TabloModeli m_föyModeli;
    std::int64_t m_gösterilen = 0;  // the archive whose sheets are listed; 0: none
    QComboBox* m_grup;
    QComboBox* m_ürün;
    GirişKutusu* m_not;
    GirişKutusu* m_bul;
    QLabel* m_uyarı;
    Tablo* m_arşivTablosu;
    Tablo* m_föyTablosu;
    KomutDüğmesi* m_arşivle;
    KomutDüğmesi* m_göster;
    KomutDüğmesi* m_sil;
    FarkBölümü* m_fark;
    GelişimBölümü* m_gelişim;
};
