#pragma once

#include <memory>

#include "SayfaKaynagi.h"

class ZipArşivi;

std::unique_ptr<SayfaKaynağı> OdsKaynağı(std::unique_ptr<ZipArşivi> arşiv);
