#pragma once

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "AcilirGirisKutusu.h"
#include "DegiskenModulu.h"
#include "EnterTusu.h"
#include "EtiketVurgusu.h"
#include "GirisKutusu.h"
#include "KomutDugmesi.h"
#include "SayiKutusu.h"
#include "VarnekTesti.h"

// A form with one of everything, on screen and active.
struct ÖrnekForm : QDialog {
    ÖrnekForm() {
        Etiket.setText(QString::fromUtf8("&İşçilik && Kâr (%)"));
        Komut.setText(QStringLiteral("&Kaydet"));
        Ağaç.setHeaderHidden(true);
        auto* düğüm = new QTreeWidgetItem(&Ağaç, {QStringLiteral("MASA")});
        düğüm->setFlags(düğüm->flags() | Qt::ItemIsEditable);
        auto* dizim = new QVBoxLayout(this);
        for (QWidget* parça :
             std::initializer_list<QWidget*>{&Etiket, &Yüzde, &Eksili, &Tutar, &Ad, &Grup, &Tür, &Ağaç, &Komut})
            dizim->addWidget(parça);
        EtiketEşle(&Etiket, &Yüzde);
        QObject::connect(&Komut, &QPushButton::clicked, &Komut, [this] { KomutAnındakiler << Yüzde.text(); });
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        Komut.setFocus();
    }

    QLabel Etiket;
    SayıKutusu Yüzde{SayıKutusu::Tür::Yüzde};
    SayıKutusu Eksili{SayıKutusu::Tür::EksiliYüzde};
    SayıKutusu Tutar{SayıKutusu::Tür::Tutar};
    AdKutusu Ad;
    GrupKutusu Grup;
    MiktarTürüKutusu Tür;
    QTreeWidget Ağaç;
    KomutDüğmesi Komut;
    QStringList KomutAnındakiler;  // text of Yüzde at each run of the command
};

// Whichever way the test moves the focus, and keys as the user would press them one by one.
inline void Yaz(QWidget& kutu, const char* metin) {
    kutu.setFocus();
    for (const QChar harf : QString::fromUtf8(metin))
        QTest::sendKeyEvent(QTest::Click, &kutu, Qt::Key_unknown, harf, {});
}

inline void Yapıştır(QWidget& kutu, const char* metin) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(metin));
    QTest::keyClick(&kutu, Qt::Key_V, Qt::ControlModifier);
}
