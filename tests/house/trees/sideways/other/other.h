#pragma once
#include "engine/engine.h"
