#pragma once

#include "store/file_lock.h"

// Takes the lock that says that the game runs; it is held as long as the object lives. False when another process of
// the same user holds it; true as well where no lock can be had, for that must keep nobody from playing.
bool TakeOnlyInstance(FileLock& lock);
