#pragma once

// The letter that a byte of the Turkish code page stands for; U+FFFD for what is none.
char16_t Windows1254Harfi(unsigned char bayt) noexcept;
