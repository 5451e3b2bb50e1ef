#include "SurumKaydi.h"

QString SürümKaydı::Başlık() const {
    return ŞirketAdı + QStringLiteral(" - ") + ÜrünAdı + QLatin1Char(' ') + QString::number(Ana) + QLatin1Char('.') +
           QString::number(İkincil) + QString::number(Düzeltme);
}

QString SürümKaydı::SürümMetni() const {
    return QStringLiteral("Sürüm ") + QString::number(Ana) + QLatin1Char('.') + QString::number(İkincil) +
           QString::number(Düzeltme);
}

const SürümKaydı& Sürüm() {
    static const SürümKaydı kayıt{
        QStringLiteral("Tovrek"),
        QStringLiteral("Varnek"),
        VARNEK_ANA,
        VARNEK_IKINCIL,
        VARNEK_DUZELTME,
        QStringLiteral(
            "Bu program telif hakları yasasıyla korunmaktadır. İzinsiz çoğaltılması ve dağıtılması yasaktır.")};
    return kayıt;
}
