#pragma once
#include "engine/c.h"
