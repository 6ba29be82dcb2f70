#include "collections/LongArrayList.h"

template class ArrayListBase<LongArrayListTraits>;
