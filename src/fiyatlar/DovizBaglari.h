#pragma once

#include <QWidget>
#include <memory>

#include "DovizTablolari.h"

class QLabel;
class GirişKutusu;
class KomutDüğmesi;
class SayıKutusu;
class Tablo;

// The lower part of the form of currencies: the materials tied to the chosen one, and what ties and unties.
class DövizBağları : public QWidget {
  public:
    // `veri` belongs to the form; `değişti` is to read it anew.
    DövizBağları(const DövizVerisi& veri, std::function<void()> değişti);
    ~DövizBağları() override;

    // Before the form's data are replaced, and after it: what was marked stays so.
    void SeçimiSakla();
    void Yenile(const QString& kod);
    // Shows the ties of this currency; "": none is chosen.
    void DöviziSeç(const QString& kod);

  private:
    void KontrolleriKur();
    QWidget* BağBölümü();
    QWidget* AdayBölümü();
    void Süz();
    void DüğmeleriAyarla();
    void BağıAl();
    std::optional<Para> Fiyat();
    bool YarıMamulDeğil(const QString& ad);
    void Bağla();
    bool BağlanırMı(const KatalogMalzemesi& malzeme, const std::optional<Deyimler::Döviz::Bağ>& eski);
    void Çöz();
    QString SeçiliBağ() const;
    QString SeçiliAday() const;

    std::function<void()> m_değişti;
    QString m_kod;
    QString m_sonBağ;  // what SeçimiSakla has kept
    QString m_sonAday;
    BağKaynağı m_bağKaynağı;
    AdayKaynağı m_adayKaynağı;
    TabloModeli m_bağModeli;
    TabloModeli m_adayModeli;
    Tablo* m_bağlar;
    Tablo* m_adaylar;
    QLabel* m_bağNotu;
    QLabel* m_adayNotu;
    GirişKutusu* m_süz;
    SayıKutusu* m_fiyat;
    KomutDüğmesi* m_bağla;
    KomutDüğmesi* m_çöz;
};
