#pragma once

#include <QDialog>
#include <QVariantMap>
#include <vector>

class QLabel;
class QVBoxLayout;
class WebEtiketi;

// What the about and the error-report form have in common: the background panel `Altlık`, on which the icon stands
// beside a column of texts and links, the links' hover look, and `TamamButonu`, which closes the form as Esc does.
class KabukFormu : public QDialog {
  protected:
    KabukFormu(const QString& ad, const QString& başlık, QWidget* sahip);

    // A text below the ones already there, broken into lines where it is too long for the form.
    QLabel* EtiketEkle(const QString& metin);
    // A large text: a heading.
    void BaşlıkEkle(const QString& metin);
    // A link below what is already there, in the forms' common look.
    void BağlantıEkle(const QString& caption, const QString& adres);
    // The button; called last, so that Tab comes to it after the links.
    void TamamEkle();

    bool event(QEvent* olay) override;
    void mouseMoveEvent(QMouseEvent* olay) override;

  private:
    QWidget* m_altlık;
    QVBoxLayout* m_düzen;
    QVBoxLayout* m_sütun;
    std::vector<WebEtiketi*> m_bağlantılar;
    int m_etiketSayısı = 0;
};
