#pragma once

// Lets screen readers meet every WebEtiketi as a link that bears its caption and can be followed. May be called often.
void WebEtiketiErişiminiKur();
