#pragma once
#include <string>
#include "engine/part.h"
#include "other/other.h"
#include "panel/run.h"
