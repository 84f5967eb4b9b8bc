#pragma once
#include "panel/ground.h"
