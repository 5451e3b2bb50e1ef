#pragma once

#include <QDialog>
#include <QTreeWidget>

#include "TekSecimli.h"

class AdKutusu;
class AnaFormErişimi;
class GrupKutusu;
class KomutDüğmesi;
class QFrame;

// Adds products, each in a group, and deletes a product or a whole group. Browse mode while the frame around the entry
// boxes is disabled, add mode while it is enabled; the form closes only from browse mode.
class ÜrünEkleSilFormu : public QDialog {
  public:
    explicit ÜrünEkleSilFormu(AnaFormErişimi& anaForm, QWidget* sahip = nullptr);

    // Fills the group list and the tree; once, before the form is shown.
    void Yükle();

    // Whether all groups could be read. As long as they could not, an add begins by reading them again.
    bool GruplarOkundu() const { return m_gruplarOkundu; }

    // The first press begins an add, the second saves it. Public: the main form opens the form straight in add mode.
    void ÜrünEkleKaydetButonu_Click();

    // Esc and the close box press the close / cancel button.
    void reject() override { KapatİptalButonu_Click(); }

  private:
    void KontrolleriKur();
    void Yerleştir();
    void ÜrünSilButonu_Click();
    void KapatİptalButonu_Click();

    bool EklemeKipinde() const;
    void EklemeKipineGeç();
    void GözatmaKipineDön();
    void ListeDurumunuAyarla();
    void SilDüğmesiniAdlandır();

    void EkleneniYerleştir(const QString& grup, const QString& ürün);
    bool SilmeOnayı(bool grupMu);
    void SilineniKaldır(const QString& grup, const QString& ürün, bool grupMu);
    QTreeWidgetItem* GrupDüğümü(const QString& grup) const;

    AnaFormErişimi& m_anaForm;
    bool m_gruplarOkundu = false;
    KomutDüğmesi* m_ekleKaydet;
    KomutDüğmesi* m_sil;
    KomutDüğmesi* m_kapatİptal;
    QFrame* m_çerçeve;
    GrupKutusu* m_grup;
    AdKutusu* m_ad;
    TekSeçimli<QTreeWidget>* m_ağaç;
};
