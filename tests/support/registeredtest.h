#pragma once

#include <QtTest>

#include <functional>

/// Makes one test class known to the program that its file is linked into, under the name of that
/// file. Each folder of tests is one program, which runs one of them at a time.
class RegisteredTest
{
public:
    using Maker = std::function<QObject *()>;

    RegisteredTest(const char *file, const Maker &make);
};

/// Takes the name of a test off the arguments and runs it with the others, which are Qt Test's.
/// Without such a name it lists all names and fails.
int runRegisteredTest(int argc, char **argv);

/// In place of QTEST_MAIN, once in a file.
#define REGISTER_TEST(TestClass)                                                                   \
    namespace {                                                                                    \
    const RegisteredTest registration##TestClass(__FILE__, [] { return new TestClass; });          \
    }
