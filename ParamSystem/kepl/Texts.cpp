// The two-language texts of the refusals. German is UTF-8.
#include "ParamSystem/KEPL_Interpreter.h"

KeplText szIndexNotANumber = {"<< INDEX MUSS EINE ZAHL SEIN >>", "<< INDEX MUST BE A NUMBER >>"};
KeplText szSyntaxError = {"<< SYNTAX ERROR >>", "<< SYNTAX ERROR >>"};
KeplText szIndexRequired = {"<< INDEX ERFORDERLICH >>", "<< INDEX REQUIRED >>"};
KeplText szParameterRequired = {"<< PARAMETER ERFORDERLICH>>", "<< PARAMETER REQUIRED >>"};
KeplText szNoIndexAllowed = {"<< KEIN INDEX ERLAUBT >>", "<< NO INDEX ALLOWED >>"};
KeplText szValueTooLow = {"<< WERT ZU KLEIN >>", "<< VALUE TOO LOW >>"};
KeplText szValueTooHigh = {"<< WERT ZU GROSS >>", "<< VALUE TOO HIGH >>"};
KeplText szIndexTooLow = {"<< INDEX ZU KLEIN >>", "<< INDEX TOO LOW >>"};
KeplText szIndexTooHigh = {"<< INDEX ZU GROSS >>", "<< INDEX TOO HIGH >>"};
KeplText szIndex1TooLow = {"<< INDEX 1 ZU KLEIN >>", "<< INDEX 1 TOO LOW >>"};
KeplText szIndex1TooHigh = {"<< INDEX 1 ZU GROSS >>", "<< INDEX 1 TOO HIGH >>"};
KeplText szIndex2TooLow = {"<< INDEX 2 ZU KLEIN >>", "<< INDEX 2 TOO LOW >>"};
KeplText szIndex2TooHigh = {"<< INDEX 2 ZU GROSS >>", "<< INDEX 2 TOO HIGH >>"};
KeplText szIndex1gtIndex2 = {"<< INDEX 1 GRÖSSER ALS INDEX2 >>", "<< INDEX 1 GREATER THAN INDEX 2 >>"};
KeplText szReadOnly = {"<< VARIABLE IST READ ONLY >>", "<< VARIABLE IS READ ONLY >>"};
KeplText szWriteOnly = {"<< VARIABLE IST WRITE ONLY >>", "<< VARIABLE IS WRITE ONLY >>"};
KeplText szUIDWrong = {"<< RECHTE ZU NIEDRIG >>", "<< RIGHTS TOO LOW >>"};
KeplText szNotAllowed = {"<< NICHT ERLAUBT >>", "<< NOT ALLOWED >>"};
KeplText szBufferOverflow = {"<< AUSGABE PUFFER ZU KLEIN >>", "<< OUTPUT BUFFER EXCEEDED >>"};
