#include "FisCizelgesi.h"

#include "ListeCizelgesi.h"
#include "MaliyetFisi.h"

QList<QList<ÇizelgeDeğeri>> FişÖzetininSatırları(const MaliyetFişi& fiş) {
    QList<QList<ÇizelgeDeğeri>> özet;
    özet.emplaceBack();
    for (const FişÖzeti& satır : FişinÖzeti(fiş)) {
        QList<ÇizelgeDeğeri>& değerler = özet.emplaceBack();
        for (int boş = 0; boş < 2; ++boş) değerler.emplaceBack();
        değerler.emplaceBack(satır.Etiket);
        değerler.emplaceBack();
        değerler.append(GösterilenDeğer(satır.Değer));
    }
    return özet;
}
