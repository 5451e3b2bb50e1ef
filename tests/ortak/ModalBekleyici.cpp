#include "ModalBekleyici.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTest>
#include <QTimer>

constexpr int SÜRE = 5000;  // milliseconds

static void ZorlaBitir(QWidget* form) {
    if (auto* kutu = qobject_cast<QDialog*>(form)) return kutu->done(QDialog::Rejected);
    form->hide();
}

void ModalAç(const std::function<void()>& açan, const QString& adı, const std::function<void(QWidget&)>& iş) {
    const QWidget* önceki = QApplication::activeModalWidget();
    bool çalıştı = false;
    QPointer<QWidget> kalan;  // from the end of the work on, when the form has to end by itself
    const auto bitti = [&] { return !kalan || !kalan->isVisible(); };
    QElapsedTimer geçen;
    QTimer sayaç;
    QObject::connect(&sayaç, &QTimer::timeout, &sayaç, [&] {
        if (!bitti() && geçen.elapsed() > SÜRE) {
            ADD_FAILURE() << "the modal form stayed open: " << kalan->objectName().toStdString();
            return ZorlaBitir(kalan);
        }
        const QPointer<QWidget> form = QApplication::activeModalWidget();
        if (çalıştı || !form || form == önceki || !form->isVisible()) return;
        çalıştı = true;
        if (adı.isEmpty() || form->objectName() == adı) {
            iş(*form);
        } else {
            ADD_FAILURE() << "not " << adı.toStdString() << " opened: " << form->objectName().toStdString();
            ZorlaBitir(form);
        }
        geçen.start();
        kalan = form;
    });
    sayaç.start(2);
    açan();
    // A form opened by a queued call or a posted event comes after the step's return.
    EXPECT_TRUE(Bekle([&] { return çalıştı; })) << "no modal form opened: " << adı.toStdString();
    EXPECT_TRUE(Bekle(bitti)) << "the modal form stayed open: " << adı.toStdString();
}

bool Bekle(const std::function<bool()>& koşul) {
    return QTest::qWaitFor(koşul, SÜRE);
}
