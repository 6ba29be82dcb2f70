// Starts as qrb-load does, with the same libraries, and exits: the floor of start-up and
// memory that a Qt program pays and `xmllint` doesn't, timed beside both.
#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    return 0;
}
