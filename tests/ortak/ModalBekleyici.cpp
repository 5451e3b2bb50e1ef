#include "ModalBekleyici.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

constexpr int SÜRE = 5000;  // milliseconds

void ZorlaBitir(QWidget* form) {
    if (auto* kutu = qobject_cast<QDialog*>(form)) {
        kutu->done(QDialog::Rejected);
    } else {
        form->hide();
    }
}

// What happens around one modal form: waiting for it, the work, waiting for its end.
class ModalGözcüsü {
  public:
    ModalGözcüsü(const QString& adı, const std::function<void(QWidget&)>& iş)
        : m_adı(adı), m_iş(iş), m_önceki(QApplication::activeModalWidget()) {
        QObject::connect(&m_sayaç, &QTimer::timeout, &m_sayaç, [this] { Bak(); });
        m_geçen.start();
        m_sayaç.start(2);
    }

    bool Çalıştı() const { return m_çalıştı; }
    bool Bitti() const { return !m_form || !m_form->isVisible(); }

  private:
    void Bak() {
        if (m_form) {
            if (Bitti() || m_geçen.elapsed() < SÜRE) return;
            ADD_FAILURE() << "the modal form stayed open: " << m_form->objectName().toStdString();
            ZorlaBitir(m_form);
            return;
        }
        QWidget* form = QApplication::activeModalWidget();
        if (m_çalıştı || !form || form == m_önceki || !form->isVisible()) return;
        m_çalıştı = true;
        if (!m_adı.isEmpty() && form->objectName() != m_adı) {
            ADD_FAILURE() << "another modal form than " << m_adı.toStdString() << ": "
                          << form->objectName().toStdString();
            ZorlaBitir(form);
            return;
        }
        const QPointer<QWidget> koru(form);
        m_iş(*form);
        // From here on the form has to end by itself.
        m_geçen.restart();
        if (koru && koru->isVisible()) m_form = koru;
    }

    QString m_adı;
    const std::function<void(QWidget&)>& m_iş;
    QWidget* m_önceki;
    QPointer<QWidget> m_form;
    QTimer m_sayaç;
    QElapsedTimer m_geçen;
    bool m_çalıştı = false;
};

}  // namespace

void ModalAç(const std::function<void()>& açan, const QString& adı, const std::function<void(QWidget&)>& iş) {
    ModalGözcüsü gözcü(adı, iş);
    açan();
    // A form opened by a queued call or a posted event comes after the step's return.
    EXPECT_TRUE(Bekle([&gözcü] { return gözcü.Çalıştı(); })) << "no modal form opened: " << adı.toStdString();
    EXPECT_TRUE(Bekle([&gözcü] { return gözcü.Bitti(); })) << "the modal form stayed open: " << adı.toStdString();
}

bool Bekle(const std::function<bool()>& koşul) {
    return QTest::qWaitFor(koşul, SÜRE);
}
