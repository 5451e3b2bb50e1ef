#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QString>

class QWidget;

// Opens the user guide at the page of the form in front: the page that bears the form's object name, or that of the
// nearest form it was opened from; without one, the contents. The guide lies in the folder "kilavuz" beside the program
// or, where it is installed system-wide, in the share folder beside the program's. Where it is in neither, a message
// says so.
void YardımıAç(const QWidget* öndeki, const QString& programKlasörü = QCoreApplication::applicationDirPath());

// The guide's folder for a program in this folder; "" when there is none.
QString KılavuzKlasörü(const QString& programKlasörü);

// The guide's page for this form; "index.html" when it has none of its own.
QString KılavuzSayfası(const QString& kılavuzKlasörü, const QWidget* öndeki);

// While it lives, F1 opens the guide from anywhere in the program.
class YardımTuşu : public QObject {
  public:
    explicit YardımTuşu(QObject* sahip);

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;
};
