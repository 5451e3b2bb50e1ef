#include "TabloMetni.h"

#include "SayiMetni.h"

QString TabloMetni(const QString& metin) {
    const bool formülGibi = !metin.isEmpty() && QStringLiteral("=+-@\t").contains(metin.front());
    return formülGibi ? QLatin1Char('\'') + metin : metin;
}

QString TabloRakamı(const QString& metin) {
    const qsizetype boşluk = metin.indexOf(QLatin1Char(' '));
    const QStringView baş = QStringView(metin).left(boşluk < 0 ? metin.size() : boşluk);
    return OndalıkOku(baş, NoktaKuralı::Yerinde) ? metin : TabloMetni(metin);
}
