#pragma once

#include "support/LibraryTesting.h"
