#include "Simge.h"

QIcon ProgramSimgesi() {
    // The pictures lie in a static library, which does not bring them in by itself.
    Q_INIT_RESOURCE(simge);
    QIcon simge;
    for (const int boy : {16, 24, 32, 48, 64, 128, 256})
        simge.addFile(QStringLiteral(":/simge/varnek-%1.png").arg(boy), QSize(boy, boy));
    return simge;
}
