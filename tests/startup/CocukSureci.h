#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

// The program's start in a process of its own; killed when the object goes.
class ÇocukSüreci {
  public:
    explicit ÇocukSüreci(const QStringList& istek, const QString& boz = {});
    ~ÇocukSüreci();

    bool BaşladıMı();  // waits until it says that it runs, or ends
    // Waits for the end: the exit code, or ÖLDÜ when a signal ended it.
    static constexpr int ÖLDÜ = -1;
    static constexpr int BAŞKA_KOPYA = 3;
    int Sonuç();
    QString Kutular();  // what its message boxes said

    QProcess& Süreç() { return m_süreç; }

  private:
    QProcess m_süreç;
};
