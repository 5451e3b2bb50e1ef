#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>
#include <functional>

#include "ListeCizelgesi.h"
#include "OdbcModulu.h"
#include "SutunluListe.h"
#include "Yazdirma.h"

enum class MetinNo : int;
class KomutDüğmesi;
class QGroupBox;
class QHBoxLayout;
class QTreeWidgetItem;

// What the three report forms share: a framed list that can be printed, saved as PDF and previewed as it is shown, or
// written into a spreadsheet.
class RaporFormu : public QDialog {
  protected:
    // Puts title and list rows on the surface.
    using Çıktı = std::function<void(SayfaYüzeyi&, const QString&, const QList<QStringList>&)>;

    struct Tanım {
        QString Ad;  // object names
        QString ListeAdı;
        MetinNo Başlık;          // the form's caption
        MetinNo ÇerçeveBaşlığı;  // the frame's
        QList<SütunluListe::Sütun> Sütunlar;
        Çıktı Yaz;
        QList<ListeSütunu> Aktarılan;  // what the columns hold, for a spreadsheet
    };
    RaporFormu(const Tanım& tanım, QWidget* sahip);

    // The printout's title.
    virtual QString RaporBaşlığı() const { return windowTitle(); }
    // The focus where reading begins: in the list, or on the first button that can be pressed when it is empty.
    void OdağıBaşaAl();
    void showEvent(QShowEvent* olay) override;

    // A dialog or message box of the program that this form opened has closed.
    virtual void PencereKapandı() {}

    // Replaces the list's rows. An empty list can be neither used nor printed; one that could not be read whole is not
    // printed either.
    void SatırlarıGöster(const QList<QTreeWidgetItem*>& satırlar, Okuma okuma);

    // A button that runs a command, put at the front of the form's row of buttons.
    void BaşaDüğmeKoy(const QString& ad, MetinNo metin, std::function<void()> komut);

    SütunluListe& Liste() const { return *m_liste; }
    QGroupBox& Çerçeve() const { return *m_çerçeve; }

  private:
    void DüğmeleriKur();
    void EtkinliğiAyarla();
    QList<QStringList> ListeMetinleri() const;
    Yazdırılacak Rapor() const;

    Çıktı m_yaz;
    QList<ListeSütunu> m_aktarılan;
    bool m_tamam = false;  // all rows are there
    SütunluListe* m_liste;
    QGroupBox* m_çerçeve;
    QHBoxLayout* m_düğmeler;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdfKaydet;
    KomutDüğmesi* m_önizle;
    KomutDüğmesi* m_aktar;
};
