#pragma once

#include <memory>

#include "SayfaKaynagi.h"

class ZipArşivi;

std::unique_ptr<SayfaKaynağı> XlsxKaynağı(std::unique_ptr<ZipArşivi> arşiv);
