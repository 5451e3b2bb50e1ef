#pragma once

#include <QDialog>

#include "OdbcModulu.h"

class AdKutusu;
class AnaFormErişimi;
class DövizEtiketi;
class GirişKutusu;
class KatalogListesi;
class KomutDüğmesi;
class QFrame;
class SayıKutusu;

// Keeps the material catalogue: adds a material with its price, deletes one (from every product too, if the user
// agrees), changes a price, which reaches every product that uses the material. It closes only from browse mode.
class MalzemeEkleSilFormu : public QDialog {
  public:
    explicit MalzemeEkleSilFormu(AnaFormErişimi& anaForm, QWidget* sahip = nullptr);

    // Fills the list from the catalogue; once, before the form is shown.
    void Yükle();

    // The first press begins an add, the second saves it. Public: the main form opens the form straight in add mode.
    void MalzemeEkleKaydetButonu_Click();

    // Esc and the close box press the close / cancel button.
    void reject() override { KapatİptalButonu_Click(); }

  private:
    enum class Kip { Gözatma, Ekleme, FiyatDeğişimi };

    void KontrolleriKur();
    void Yerleştir();
    void MalzemeSilButonu_Click();
    void MalzemeFiyatıDeğiştirButonu_Click();
    void KapatİptalButonu_Click();
    void MalzemeBulKutusu_Change();

    Kip GeçerliKip() const;
    void EklemeKipineGeç();
    void EklemedenDön();
    void FiyatKipineGeç();
    void FiyattanDön();
    void ListeyiEtkinleştir(bool etkin);
    Kayıt SeçileniGöster();
    void SatırıSeç(int satır);
    void ListedenKaldır(int satır);
    void FiyatDeğişimineBaşla();
    bool BağÇözüldü(const QString& malzeme);
    void FiyatıKaydet();
    void SeçiliÜrünüYenile();
    void GeçmişiGöster();
    bool GirilenlerUygun();

    AnaFormErişimi& m_anaForm;
    GirişKutusu* m_bul;
    KatalogListesi* m_liste;
    QFrame* m_çerçeve;
    AdKutusu* m_ad;
    SayıKutusu* m_fiyat;
    DövizEtiketi* m_döviz;
    KomutDüğmesi* m_ekleKaydet;
    KomutDüğmesi* m_sil;
    KomutDüğmesi* m_fiyatDeğiştir;
    KomutDüğmesi* m_geçmiş;
    KomutDüğmesi* m_kapatİptal;
};
