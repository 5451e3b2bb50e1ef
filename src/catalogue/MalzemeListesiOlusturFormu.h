#pragma once

#include <QDialog>
#include <optional>

#include "Para.h"

class AnaFormErişimi;
class GirişKutusu;
class KatalogListesi;
class KomutDüğmesi;
class MiktarTürüKutusu;
class SütunluListe;
class SayıKutusu;

// Collects materials with their quantities in a list, then transfers the whole list into the product that is selected
// on the main form, each row stamped with today's date. The list lives only while the form is open.
class MalzemeListesiOluşturFormu : public QDialog {
  public:
    explicit MalzemeListesiOluşturFormu(AnaFormErişimi& anaForm, QWidget* sahip = nullptr);

    // Fills the catalogue list and the remembered quantity types; once, before the form is shown.
    void Yükle();

    // Whether there is a catalogue to choose from.
    bool KatalogBoş() const;
    // Whether all of it could be read.
    bool KatalogOkundu() const { return m_katalogOkundu; }

  private:
    void KontrolleriKur();
    void Yerleştir();
    void MalzemeBulKutusu_Change();
    void ListeyeEkleButonu_Click();
    void ListedenÇıkarButonu_Click();
    void ListeyiTemizleButonu_Click();
    void ListeyiAktarButonu_Click();

    bool GirilenlerUygun();
    void TürüHatırla(const QString& tür);
    bool ZatenEklenmiş(const QString& malzeme) const;
    std::optional<Para> BirimFiyat(const QString& malzeme) const;
    bool Aktar();
    void ListeDüğmeleriniAyarla();

    AnaFormErişimi& m_anaForm;
    bool m_katalogOkundu = false;
    MiktarTürüKutusu* m_tür;
    SayıKutusu* m_miktar;
    GirişKutusu* m_bul;
    KatalogListesi* m_katalog;
    SütunluListe* m_eklenecek;
    KomutDüğmesi* m_ekle;
    KomutDüğmesi* m_çıkar;
    KomutDüğmesi* m_temizle;
    KomutDüğmesi* m_aktar;
    KomutDüğmesi* m_iptal;
};
