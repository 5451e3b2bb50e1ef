#include <QAbstractItemModel>
#include <QTableView>

#include "Sahneler.h"

using namespace Qt::StringLiterals;

namespace {

void Yedekler(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"YedeklerMenüsü"_s, [&](QWidget& form) {
        const QAbstractItemModel& model = *Tur::Bul<QTableView>(form, u"YedekTablosu"_s).model();
        Tur::Bekle(u"the backups' checks"_s, [&] {
            constexpr int denetim = 6;
            for (int satır = 0; satır < model.rowCount(); ++satır)
                if (model.index(satır, denetim).data().toString() != u"sağlam"_s) return false;
            return model.rowCount() > 0;
        });
        tur.Çek(u"yedekler"_s, form);
        Esc(form);
    });
}

}  // namespace

std::vector<Sahne> YedekSahneleri() {
    return {{u"yedekler"_s, Yedekler}};
}
