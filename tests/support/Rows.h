#pragma once

#include "support/Testing.h"
