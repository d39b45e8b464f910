#include "satwecvt/satwecvt.h"

#ifdef SATWECVT_HAS_CONVERTFILE2
#error "C has no std::string"
#endif

int main(void)
{
    SatwecvtConvertFile convertFile = ConvertFile;
    return convertFile() == SATWECVT_WRITTEN ? 0 : 1;
}
