#pragma once

#include <gtest/gtest.h>

#include <glm/ext/matrix_relational.hpp>
#include <glm/ext/vector_relational.hpp>
#include <glm/glm.hpp>
#include <glm/gtx/string_cast.hpp>

/// For EXPECT_TRUE: every component of a GLM vector or matrix lies within `tolerance` of the expected one.
template <class T>
testing::AssertionResult isNear(const T& actual, const T& expected, float tolerance = 1e-4f)
{
    if (glm::all(glm::equal(actual, expected, tolerance))) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "got " << glm::to_string(actual) << ", expected " << glm::to_string(expected);
}
