#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "EslesmeTablosu.h"
#include "IlkSatirlar.h"
#include "ListeOkuma.h"
#include "TabloModeli.h"
#include "YuvarlamaSecimi.h"

class GirişKutusu;
class KomutDüğmesi;
class SayıKutusu;
class Tablo;
class TedarikçiKutusu;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QSpinBox;
class QTableView;
struct Fiyatİşi;

// A supplier's price list: which of its columns hold names and prices, which materials the names mean, and what the
// prices become; then shows what it does.
class FiyatListesiAlFormu : public QDialog {
  public:
    explicit FiyatListesiAlFormu(QWidget* sahip);
    ~FiyatListesiAlFormu() override;

    // Reads suppliers and catalogue. False: the user has been told why they could not be read.
    bool Yükle();
    // Reads a file; false: the user has been told why it could not be read.
    bool DosyayıOku(const QString& yol);
    // Prices were changed while the form was open.
    bool Uygulandı() const { return m_uygulandı; }

  private:
    using Tedarikçi = Deyimler::Tedarikçi::Tedarikçi;

    void DosyaKontrolleriniKur();
    void EşleşmeKontrolleriniKur();
    void Yerleştir();
    QWidget* DosyaBölümü();
    QWidget* EşleşmeBölümü();

    // The file and its columns.
    void Gözat();
    void DosyaKutusuBırakıldı();
    bool Tanı(const ListeSeçimi& seçim);
    void Boşalt();
    void SeçimiGöster(const TanınanListe& liste);
    void SütunAdlarınıYaz();
    void SütunlarDeğişti();
    bool SatırlarıOku();
    const Tedarikçi* KayıtlıTedarikçi() const;
    void TedarikçiDeğişti();
    void TercihiGöster(const Tedarikçi& tercih);
    Tedarikçi SeçilenTercih() const;

    // The rows and their materials.
    bool Eşle();
    İşSonucu Eşle(const MalzemeKataloğu& katalog);
    void KuralıUygula(const MalzemeKataloğu& katalog);
    void KuralDeğişti();
    bool İskontoOkunur() const;
    void SayıyıYaz();
    void SeçimDeğişti();
    void GörünenleriSeç();
    void Eşleştir();
    void EşleşmeyiÇöz();
    void YenidenSeç(std::size_t satır);
    void Önizle();
    QString Açıklama() const;
    Fiyatİşi İş();

    bool m_uygulandı = false;
    bool m_okunuyor = false;
    QString m_yol;    // of the file whose rows are shown, or that could not be read
    QString m_damga;  // what it was like then
    ListeSeçimi m_seçim;
    ÇizelgeTürü m_tür = ÇizelgeTürü::Csv;
    qint64 m_araBaşlık = 0;
    QString m_tedarikçiAdı;
    std::vector<Tedarikçi> m_tedarikçiler;
    std::vector<Deyimler::Tedarikçi::Bağ> m_bağlar;  // that the rows were last matched by
    FiyatListesi m_liste;
    EşleşmeKaynağı m_kaynak;
    TabloModeli m_model;
    İlkSatırlar m_ilkler;

    GirişKutusu* m_dosya;
    KomutDüğmesi* m_gözat;
    TedarikçiKutusu* m_tedarikçi;
    QComboBox* m_sayfa;
    QComboBox* m_ayraç;
    QSpinBox* m_başlık;
    QComboBox* m_adSütunu;
    QComboBox* m_fiyatSütunu;
    QComboBox* m_ondalık;
    QTableView* m_ilkTablo;
    SayıKutusu* m_iskonto;
    YuvarlamaSeçimi m_yuvarlama;
    Tablo* m_tablo;
    QCheckBox* m_sorunlular;
    QLabel* m_sayı;
    KomutDüğmesi* m_görünenler;
    KomutDüğmesi* m_eşleştir;
    KomutDüğmesi* m_çöz;
    KomutDüğmesi* m_önizle;
};
