#include <QAbstractItemModel>
#include <QTableView>

#include "Deyimler.h"
#include "OdbcModulu.h"
#include "OdbcTanitici.h"
#include "Sahneler.h"

using namespace Qt::StringLiterals;

namespace {

// Runs `iş` on the form once all backups are checked.
void YedekleriAç(QWidget& anaForm, const std::function<void(QWidget&)>& iş) {
    MenüdenAç(anaForm, u"YedeklerMenüsü"_s, [&](QWidget& form) {
        const QAbstractItemModel& model = *Tur::Bul<QTableView>(form, u"YedekTablosu"_s).model();
        Tur::Bekle(u"the backups' checks"_s, [&] {
            constexpr int denetim = 6;
            for (int satır = 0; satır < model.rowCount(); ++satır)
                if (model.index(satır, denetim).data().toString() != u"sağlam"_s) return false;
            return model.rowCount() > 0;
        });
        iş(form);
        Esc(form);
    });
}

void Yedekler(Tur& tur, QWidget& anaForm) {
    YedekleriAç(anaForm, [&tur](QWidget& form) { tur.Çek(u"yedekler"_s, form); });
}

void SeçerekGetir(Tur& tur, QWidget& anaForm) {
    for (const QString& deyim :
         {Deyimler::ÜrünüSil(u"MASA"_s, u"Orta Sehpa"_s), Deyimler::ÜrününMalzemeleriniSil(u"MASA"_s, u"Orta Sehpa"_s),
          Deyimler::KullanılanMalzemeÇıkar(u"MASA"_s, u"Çalışma Masası"_s, u"Metal Ayak"_s)})
        if (!ODBCBağlantısı().Çalıştır(deyim).Başarılı()) throw TurHatası(deyim);
    YedekleriAç(anaForm, [&tur](QWidget& form) {
        auto& tablo = Tur::Bul<QTableView>(form, u"YedekTablosu"_s);
        tablo.selectRow(tablo.model()->rowCount() - 1);  // the start's
        Tur::Kipli([&] { Bas(form, u"SeçerekGetirButonu"_s); },
                   [&tur](QWidget& seçim) {
                       auto& farklar = Tur::Bul<QTableView>(seçim, u"FarkTablosu"_s);
                       farklar.model()->setData(farklar.model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
                       tur.Çek(u"secerek-getir"_s, seçim);
                       Esc(seçim);
                   });
    });
}

}  // namespace

std::vector<Sahne> YedekSahneleri() {
    return {{u"yedekler"_s, Yedekler}, {u"secerek-getir"_s, SeçerekGetir}};
}
