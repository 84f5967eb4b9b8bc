#pragma once
#include "engine/b.h"
