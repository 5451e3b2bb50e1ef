#pragma once

#include <functional>
#include <vector>

#include "FiyatKayitlari.h"
#include "FiyatPlani.h"

// The record of a price that was changed in the material's own form. The form sends its own statements; this keeps them
// and their record together.
class ElleDeğişim {
  public:
    explicit ElleDeğişim(OdbcBağlantısı& bağlantı) : m_bağlantı(bağlantı) {}

    // Before anything is written: what the price is now, and which used rows have another. What cannot be read is not
    // recorded; the change itself goes on.
    void Hazırla(const QString& malzeme, Para yeni);

    enum class Son {
        Tamam,          // also where there was nothing to be recorded
        Kaydedilemedi,  // the statements are written, their record is not
        Yazılamadı      // nothing is written
    };
    struct Yazılan {
        bool Katalogda = false;
        bool Ürünlerde = false;
    };
    // Runs `deyimler` and the record as one transaction. `deyimler` tells which of its statements succeeded; what did
    // is committed, whatever became of the other.
    Son Yürüt(const std::function<Yazılan()>& deyimler, const QString& açıklama, const QString& zaman,
              OdbcSonucu& hata);

  private:
    bool Kaydet(const Yazılan& yazılan, const Deyimler::Fiyat::İşlem& işlem);

    OdbcBağlantısı& m_bağlantı;
    bool m_kaydedilir = false;
    bool m_okunamadı = false;
    bool m_tablolarVar = false;
    std::int64_t m_no = 0;
    QString m_malzeme;  // as the catalogue spells it
    Para m_eski;
    Para m_yeni;
    std::vector<KullanılanSatır> m_ayrılar;
};
