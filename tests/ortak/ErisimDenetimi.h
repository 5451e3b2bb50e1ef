#pragma once

class QWidget;

// Walks the accessibility tree of a shown form, as a screen reader does, and fails the test for every visible control
// that has no name or no role there, and for every one that the user cannot get to by keyboard.
void ErişimiDenetle(QWidget& form);
