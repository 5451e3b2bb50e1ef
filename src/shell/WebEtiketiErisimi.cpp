#include "WebEtiketiErisimi.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "WebEtiketi.h"

namespace {

class WebEtiketiErişimi : public QAccessibleWidget {
  public:
    explicit WebEtiketiErişimi(WebEtiketi* etiket) : QAccessibleWidget(etiket, QAccessible::Link), m_etiket(etiket) {}

    QString text(QAccessible::Text tür) const override {
        switch (tür) {
            case QAccessible::Name:
                return m_etiket->Caption();
            case QAccessible::Description:
                return m_etiket->Url();
            default:
                return QAccessibleWidget::text(tür);
        }
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    void doAction(const QString& eylem) override {
        if (eylem == pressAction()) {
            m_etiket->Tıkla();
        } else {
            QAccessibleWidget::doAction(eylem);
        }
    }

  private:
    WebEtiketi* m_etiket;
};

QAccessibleInterface* Üret(const QString&, QObject* nesne) {
    auto* etiket = dynamic_cast<WebEtiketi*>(nesne);
    return etiket ? new WebEtiketiErişimi(etiket) : nullptr;
}

}  // namespace

void WebEtiketiErişiminiKur() {
    static const bool kuruldu = (QAccessible::installFactory(&Üret), true);
    (void)kuruldu;
}
