#include "CocukSureci.h"

#include <gtest/gtest.h>

#include <QProcessEnvironment>

namespace {
constexpr int SÜRE = 30000;  // milliseconds
}

ÇocukSüreci::ÇocukSüreci(const QStringList& istek, const QString& boz) {
    QProcessEnvironment çevre = QProcessEnvironment::systemEnvironment();
    if (!boz.isEmpty()) çevre.insert(QStringLiteral("VARNEK_BOZ"), boz);
    m_süreç.setProcessEnvironment(çevre);
    m_süreç.start(QStringLiteral(VARNEK_BIN "/baslat-cocugu"), istek);
}

ÇocukSüreci::~ÇocukSüreci() {
    m_süreç.kill();
    m_süreç.waitForFinished(SÜRE);
}

bool ÇocukSüreci::BaşladıMı() {
    while (!m_süreç.canReadLine() && m_süreç.waitForReadyRead(SÜRE)) {
    }
    return m_süreç.readLine() == "basladi\n";
}

int ÇocukSüreci::Sonuç() {
    // Not done already, and not done in time: a failure.
    if (m_süreç.state() != QProcess::NotRunning) {
        EXPECT_TRUE(m_süreç.waitForFinished(SÜRE)) << m_süreç.errorString().toStdString();
    }
    return m_süreç.exitStatus() == QProcess::CrashExit ? ÖLDÜ : m_süreç.exitCode();
}

QString ÇocukSüreci::Kutular() {
    return QString::fromUtf8(m_süreç.readAllStandardError());
}
