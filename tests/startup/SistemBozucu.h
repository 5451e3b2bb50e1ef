#pragma once

// Makes the system fail at a chosen point. From the call on, the changes that this process makes to files are counted
// (writing, cutting, syncing, renaming, removing); VARNEK_BOZ says what becomes of one:
//   "oldur N"   the process is killed at the N-th change; a write is half done then
//   "doldur N"  the disk is full from the N-th change on
void BozucuyuKur();
