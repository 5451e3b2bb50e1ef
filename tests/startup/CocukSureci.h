#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>

// The program's start in a process of its own; killed when the object goes.
class ÇocukSüreci {
  public:
    explicit ÇocukSüreci(const QStringList& istek, const QString& boz = {}) {
        QProcessEnvironment çevre = QProcessEnvironment::systemEnvironment();
        if (!boz.isEmpty()) çevre.insert(QStringLiteral("VARNEK_BOZ"), boz);
        Süreç.setProcessEnvironment(çevre);
        Süreç.start(QStringLiteral(VARNEK_BIN "/baslat-cocugu"), istek);
    }
    ~ÇocukSüreci() {
        Süreç.kill();
        Süreç.waitForFinished(SÜRE);
    }

    // Waits until it says that it runs, or ends.
    bool BaşladıMı() {
        while (!Süreç.canReadLine() && Süreç.waitForReadyRead(SÜRE)) continue;
        return Süreç.readLine() == "basladi\n";
    }
    // Waits for the end: the exit code, or ÖLDÜ when a signal ended it.
    static constexpr int ÖLDÜ = -1;
    static constexpr int BAŞKA_KOPYA = 3;
    int Sonuç() {
        EXPECT_TRUE(Süreç.state() == QProcess::NotRunning || Süreç.waitForFinished(SÜRE));
        return Süreç.exitStatus() == QProcess::CrashExit ? ÖLDÜ : Süreç.exitCode();
    }
    // What its message boxes said.
    QString Kutular() { return QString::fromUtf8(Süreç.readAllStandardError()); }

    QProcess Süreç;

  private:
    static constexpr int SÜRE = 30000;  // milliseconds
};
