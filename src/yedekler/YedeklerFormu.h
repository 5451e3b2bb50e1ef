#pragma once

#include <QDialog>

#include "SiraliDenetim.h"
#include "YedekSatirlari.h"

class KomutDüğmesi;
class QLabel;
class Tablo;

// All backups of the data file, and those of other places. Days and sizes stand there at once, counts and checks follow
// one by one.
class YedeklerFormu : public QDialog {
  public:
    enum class Açılış {
        Program,
        YalnızGeriYükleme  // before the start: there is no connection, and nothing to back up
    };
    YedeklerFormu(Açılış açılış, QWidget* sahip);
    ~YedeklerFormu() override;

    void Yükle();
    bool GeriYüklendi() const { return m_geriYüklendi; }
    bool Getirildi() const { return m_getirildi; }  // something from a backup

    // Asked before anything is picked from a backup; false: not now.
    void SeçmedenÖnce(std::function<bool()> sor) { m_seçmedenÖnce = std::move(sor); }

  private:
    void Yerleştir();
    void Denetle();
    void SeçimDeğişti();
    void Yedekle();
    void DışarıYaz();
    void DosyaAç();
    void GeriYükle();
    void Seç();
    QString Damga() const;

    Açılış m_açılış;
    VeriYolları m_yollar;
    YedekSatırları m_kaynak;
    TabloModeli m_model;
    Tablo* m_tablo;
    QLabel* m_not;
    KomutDüğmesi* m_geriYükle;
    KomutDüğmesi* m_seçerekGetir;
    std::function<bool()> m_seçmedenÖnce;
    bool m_geriYüklendi = false;
    bool m_getirildi = false;
    SıralıDenetim m_denetim;  // the last to be made, the first to go
};
