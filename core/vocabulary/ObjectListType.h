#pragma once

// What a context may offer of the object catalogue.
enum class ObjectListType {
    Everything = 1,
    CodingConvention = 2, // what a coding convention or unauthorised keyword can use
    NamingConvention = 3,
    BaseAndImplements = 4, // no caller; only the object list tells it apart
};
