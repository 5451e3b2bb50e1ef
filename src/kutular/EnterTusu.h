#pragma once

class QWidget;

// From now on Enter moves on from `kutu` as Tab does and has no other effect there.
void Enterİleİlerlesin(QWidget* kutu);
