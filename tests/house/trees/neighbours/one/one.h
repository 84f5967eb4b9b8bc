#pragma once
#include "other/other.h"
