// The kinds by name, with what a page wants to know of each beyond the field itself: the names of the boxes for
// those who do not see them, and what a phone's keyboard and the browser's memory are to offer.

export interface Kind {
  readonly number: number;
  // In the order in which the boxes stand; a kind with one box goes by the label alone.
  readonly boxes?: readonly string[];
  readonly inputMode?: string;
  readonly autocomplete?: string;
  // Whether a browser's spelling marks help.
  readonly prose?: boolean;
}

const digits = { inputMode: 'numeric' };
const date = { ...digits, boxes: ['dia', 'mês', 'ano'] };
const amount = { inputMode: 'decimal' };

export const kinds: Readonly<Record<string, Kind>> = {
  gbNenhuma: { number: 100, prose: true },
  gbLetra: { number: 110 },
  gbAlfanumerico: { number: 120 },
  gbData: { number: 130, ...date },
  gbDataAtual: { number: 131, ...date },
  gbMesAno: { number: 140, ...digits, boxes: ['mês', 'ano'] },
  gbHora: { number: 150, ...digits, boxes: ['hora', 'minuto'] },
  gbInteiro: { number: 160, ...digits },
  gbReal: { number: 170, ...amount },
  gbMoeda: { number: 180, ...amount },
  gbCEP: { number: 190, ...digits, boxes: ['CEP, cinco dígitos', 'CEP, três dígitos'], autocomplete: 'postal-code' },
  gbTelefone: { number: 200, inputMode: 'tel', autocomplete: 'tel' },
  gbDefUsr: { number: 210 },
  gbVersao: { number: 220, ...amount },
  gbListaNoCombo: { number: 230 },
  gbCPF: { number: 240, ...digits },
  gbCNPJ: { number: 250, ...digits },
  gbCidadeEstado: { number: 260, boxes: ['cidade', 'estado'], autocomplete: 'address-level2' },
  gbEstado: { number: 261, autocomplete: 'address-level1' },
  gbCidadeEstadoPopulado: { number: 262, autocomplete: 'address-level2' },
  gbCartaoCredito: { number: 270, ...digits, autocomplete: 'cc-number' },
  gbIntervaloNumerico: { number: 280, ...digits, boxes: ['de', 'até'] },
  gbEnderecoEmail: { number: 290, inputMode: 'email', autocomplete: 'email' },
};

const plain: Kind = { number: 0 };

export function kindOf(mask: number): Kind {
  return Object.values(kinds).find((kind) => kind.number === mask) ?? plain;
}

// A name in any case, with or without "gb", or a number; undefined for anything else.
export function maskNumber(mask: string): number | undefined {
  const name = mask.trim().toLowerCase();
  for (const [known, kind] of Object.entries(kinds)) {
    const low = known.toLowerCase();
    if (name === low || name === low.slice(2)) return kind.number;
  }
  return /^-?\d{1,9}$/.test(name) ? Number(name) : undefined;
}
