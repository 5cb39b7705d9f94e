/// Something that a library may well export.
extern "C" int BKSOtherFunction();

int BKSOtherFunction() {
    return 0;
}
