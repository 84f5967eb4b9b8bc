#pragma once
#include "panel/run.h"
