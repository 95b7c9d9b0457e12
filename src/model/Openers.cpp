#include "model/Openers.h"

Openers gOpeners;
