#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

#include "KatalogKaynagi.h"
#include "Para.h"
#include "TabloModeli.h"

class GirişKutusu;
class KomutDüğmesi;
class SayıKutusu;
class Tablo;

// Which material a name of a supplier's list means, and for how many of its units the list's price is.
class MalzemeSeçFormu : public QDialog {
  public:
    // `malzemeler` outlives the form. `seçili`: the material it begins with; AdDizini::YOK: none.
    MalzemeSeçFormu(const QString& listeAdı, const std::vector<KatalogMalzemesi>& malzemeler, std::uint32_t seçili,
                    Para bölen, QWidget* sahip);
    ~MalzemeSeçFormu() override;

    // After it was accepted.
    std::uint32_t Seçilen() const { return m_seçilen; }
    Para Bölen() const { return m_bölen; }

  private:
    void Süz(const QString& metin);
    void Tamamla();

    const std::vector<KatalogMalzemesi>& m_malzemeler;
    KatalogKaynağı m_kaynak;
    std::unique_ptr<TabloModeli> m_model;
    GirişKutusu* m_süz;
    Tablo* m_tablo;
    SayıKutusu* m_bölenKutusu;
    KomutDüğmesi* m_tamam;
    std::uint32_t m_seçilen = AdDizini::YOK;
    Para m_bölen;
};
