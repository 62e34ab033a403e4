// No picture of an animal is cut off by the edge of its canvas.
#include "art/core/container.h"
#include "art/core/encode.h"
#include "art/core/files.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <set>
