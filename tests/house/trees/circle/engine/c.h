#pragma once
#include "engine/a.h"
