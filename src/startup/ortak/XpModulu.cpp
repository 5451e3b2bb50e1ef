#include "XpModulu.h"

#include <QApplication>
#include <QStyle>

bool GörselStilleriEtkinleştir() {
    // The toolkit picks the desktop's style when the application object is made; asking for it initialises it.
    return QApplication::style() != nullptr;
}
