#include "app/BuiltEdition.h"

const Edition BuiltEdition = Edition::English;
